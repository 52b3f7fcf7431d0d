// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/FireableWeapon.h"

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

/// Hurts what is around its wielder.
class MeleeWeapon final : public FireableWeapon {
  public:
    MeleeWeapon() : FireableWeapon(1000, 0, 5) {}
    bool fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) override;
    void dumpState(TiXmlElement& e) const override;

    /// World units.
    float reach = 32;
};

}  // namespace bc
