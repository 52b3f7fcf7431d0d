// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/triggers/TriggerBody.h"
#include "world/Creatable.h"

namespace bc {

/// Sets off its targets when the player touches it, and shows whether it rests (type "switch").
class Switch final : public Creatable<Switch, TriggerBody> {
  public:
    Switch();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo& info) override;

    // Pictures at rest and ready.
    std::string triggeredImage;
    std::string untriggeredImage;

  protected:
    void onRearmed() override;
};

}  // namespace bc
