// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/pickups/RespawnableBody.h"
#include "world/Creatable.h"

namespace bc {

/// Strikes down the enemies around it when it is collected (type "screenwiper").
class ScreenWiper final : public Creatable<ScreenWiper, RespawnableBody> {
  public:
    /// World units, and damage before difficulty.
    static constexpr float reach = 350;
    static constexpr int strength = 500;

    ScreenWiper();

  protected:
    void give(Player& player) override;
    void pickupFeedback() override;
};

}  // namespace bc
