// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "console/GameInput.h"

namespace bc {

class Player;

/// What the player's keys hold down at the moment. Process-wide: the commands set it, the input
/// target reads it every frame.
struct ActionState {
    bool right = false;
    bool left = false;
    bool up = false;
    bool down = false;
    bool boost = false;
    bool grapple = false;
    bool attack = false;
    bool fireById = false;
    // These two act once and then clear themselves.
    bool nextWeapon = false;
    bool previousWeapon = false;
    bool slow = false;
    /// The weapon of fireById.
    int weaponId = 0;
};

ActionState& actions();

/// The input target of play: the player's commands, and what they make the player's craft and
/// weapons do.
class GameplayInput final : public GameInput {
  public:
    void init() override;
    void applyMovement(Body* player, float step) override;
    void applyFiring(Body* player) override;
    void clearActions() override;

  private:
    void fireWeapons(Player& player);
    void fireGrapple(Player& player);

    GameVar* moveMode_ = nullptr;
    /// The hook was fired by +grapple and is to be let go on release.
    bool grappleHeld_ = false;
};

}  // namespace bc
