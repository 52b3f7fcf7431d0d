// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/weapons/FireableWeapon.h"

namespace bc {

/// Releases a handful of SwarmMembers that fight for the shooter; the player's swarm level says how
/// many.
class SwarmWeapon final : public FireableWeapon {
  public:
    SwarmWeapon() : FireableWeapon(25000, 0, 0) {}
    bool fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) override;

    /// How many a shooter releases.
    [[nodiscard]] static int membersFor(const GameBody* shooter);
};

}  // namespace bc
