// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/triggers/TriggerBody.h"

namespace bc {

/// Sets off its targets when the player touches it, and shows whether it rests (type "switch").
class Switch final : public TriggerBody {
  public:
    Switch();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTouch(const TouchInfo& info) override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;

    // Pictures at rest and ready.
    std::string triggeredImage;
    std::string untriggeredImage;

  protected:
    void onRearmed() override;
};

}  // namespace bc
