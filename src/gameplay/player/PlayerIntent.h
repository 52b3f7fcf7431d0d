// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

namespace bc {

/// What the player wants in one pass of the main loop. The application makes it from whatever the
/// player steers with; movement, weapons, aim and grapple read nothing else.
struct PlayerIntent {
    // Thrust each way, from 0 to 1. Opposite ways may both be held.
    float right = 0;
    float left = 0;
    float up = 0;
    float down = 0;

    bool boost = false;
    /// Brakes.
    bool slow = false;
    bool grapple = false;
    /// Fires the weapon in hand.
    bool attack = false;
    /// Fires the weapon of weaponId, which need not be in hand.
    bool fireById = false;
    /// Stays what it was after fireById has ended: that weapon is let go of.
    int weaponId = 0;

    // Asked for once.
    bool nextWeapon = false;
    bool previousWeapon = false;

    /// Direction of aim in the plane of play, unit length. Weapons fire along it.
    Vector aim{1, 0};
    /// The place in the world that is aimed at.
    Vector aimAt;
};

}  // namespace bc
