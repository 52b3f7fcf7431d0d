// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"

namespace bc {

/// Passes on what sets it off to its own targets (type "targetgroup").
class TargetGroup final : public GameBody {
  public:
    TargetGroup();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTriggered(GameBody* activator) override;
};

}  // namespace bc
