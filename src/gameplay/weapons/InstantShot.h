// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

#include <string_view>

namespace bc {

class FireableWeapon;
class GameBody;

/// A shot that arrives as it is fired: from a muzzle in front of the shooter to the first body in
/// its way.
struct InstantShot {
    /// How far inside the shooter's radius the muzzle is.
    static constexpr float muzzleInset = 4;

    /// aim has unit length. A scattered shot ends up to weapon.spread to the side of its range.
    InstantShot(const FireableWeapon& weapon, const GameBody* shooter, const Vector& position,
                const Vector& aim, bool scattered);

    /// Hurts and pushes the first body that can be hit; end becomes the place.
    void traceFirst(std::string_view weaponName, GameBody* shooter, int damage, int damageType,
                    float knockback);
    /// The same for every game body up to the first that is none.
    void traceThrough(std::string_view weaponName, GameBody* shooter, int damage, int damageType,
                      float knockback);
    /// Dust and sparks where it ends, and a streak along the way.
    void bulletEffects() const;

    Vector start;
    Vector end;
    /// Unit length.
    Vector direction;
};

/// Where a shooter's shots begin: offset inside its radius along the aim.
[[nodiscard]] Vector muzzleOf(const GameBody* shooter, const Vector& position, const Vector& aim,
                              float inset);

}  // namespace bc
