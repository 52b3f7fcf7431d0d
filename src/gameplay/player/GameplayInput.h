// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/player/PlayerIntent.h"
#include "input/GameInput.h"

namespace bc {

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

/// The input target of play: the player's commands, and what they make the player want.
class GameplayInput final : public GameInput {
  public:
    void init() override;
    void clearActions() override;
    /// What the keys want in this pass; what acts once (the next and the previous weapon) is asked
    /// for only once. The aim is left to the caller.
    [[nodiscard]] PlayerIntent takeIntent();
};

}  // namespace bc
