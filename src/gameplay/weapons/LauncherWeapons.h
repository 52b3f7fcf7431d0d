// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/weapons/FireableWeapon.h"

#include <memory>
#include <string_view>

namespace bc {

class Projectile;

/// What the weapons that launch projectiles have in common.
class LauncherWeapon : public FireableWeapon {
  public:
    void dumpState(TiXmlElement& e) const override;

    // What the projectiles get; units a second, points, world units, factor.
    float projectileSpeed = 0;
    int projectileDamage = 0;
    float projectileRadius = 0;
    float projectileKnockback = 0;

  protected:
    using FireableWeapon::FireableWeapon;
    /// Gives the projectile this weapon's numbers.
    void equip(Projectile& projectile) const;
};

/// Sends a projectile that has its numbers on its way from start along aim (unit length). False
/// when there is no world to fly in.
bool launch(std::unique_ptr<Projectile> projectile, std::string_view weaponName, GameBody* shooter,
            const Vector& start, const Vector& aim);

class RocketWeapon final : public LauncherWeapon {
  public:
    RocketWeapon();
    bool fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) override;
    void applyDefinitions() override;
};

class GrenadeWeapon final : public LauncherWeapon {
  public:
    GrenadeWeapon();
    bool fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) override;
    void applyDefinitions() override;
};

/// Enemies' and allies' plasma: damage is what a bolt deals.
class PlasmaPistolWeapon final : public FireableWeapon {
  public:
    PlasmaPistolWeapon() : FireableWeapon(500, 0, 10) {}
    bool fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) override;
};

}  // namespace bc
