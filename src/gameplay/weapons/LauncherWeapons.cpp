// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/LauncherWeapons.h"

#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/PlayLog.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/actors/Spawning.h"
#include "gameplay/weapons/GrenadeProjectile.h"
#include "gameplay/weapons/InstantShot.h"
#include "gameplay/weapons/PlasmaPistolProjectile.h"
#include "gameplay/weapons/RocketProjectile.h"
#include "gameplay/weapons/WeaponDefinitions.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

#include <algorithm>

namespace bc {

namespace {

// Mixing channels of enemies' firing sounds.
constexpr int enemyLauncherChannel = 2;
constexpr int enemyPistolChannel = 3;

// How far inside the shooter's radius projectiles start.
constexpr float rocketInset = 4;
constexpr float grenadeInset = 8;

/// The longest frame a new projectile is moved by, seconds.
constexpr float longestFrame = 0.25F;

/// A lighter grenade counts as one that nothing moves.
constexpr float leastGrenadeMass = 0.0000001F;

}  // namespace

bool launch(std::unique_ptr<Projectile> projectile, std::string_view weaponName, GameBody* shooter,
            const Vector& start, const Vector& aim) {
    projectile->owner = shooter;
    projectile->direction = aim;
    projectile->vel = aim * projectile->speed;
    placeAt(*projectile, start);
    projectile->move(std::min(GameplaySingleton::instance().frameSeconds(), longestFrame));
    Projectile* launched = projectile.get();
    if (addToWorld(std::move(projectile)) == nullptr)
        return false;
    launched->attachEffects();
    playlog::shot(weaponName, shooter, start, start + aim * launched->speed, nullptr);
    return true;
}

void LauncherWeapon::equip(Projectile& projectile) const {
    projectile.speed = projectileSpeed;
    // The shooter's quad damage comes in at the blast, once.
    projectile.damage = static_cast<float>(projectileDamage);
    projectile.blastRadius = projectileRadius;
    projectile.knockback = projectileKnockback;
    projectile.noFlash = enemyWeapon;
}

void LauncherWeapon::dumpState(TiXmlElement& e) const {
    FireableWeapon::dumpState(e);
    xml::writeFloat(e, "projectilespeed", projectileSpeed);
    xml::writeInt(e, "projectiledamage", projectileDamage);
    xml::writeFloat(e, "projectileradius", projectileRadius);
    xml::writeFloat(e, "projectileknockback", projectileKnockback);
}

RocketWeapon::RocketWeapon() {
    RocketWeapon::applyDefinitions();
}

bool RocketWeapon::fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) {
    if (!beginShot(time))
        return false;
    auto rocket = bodyPool().take<RocketProjectile>();
    equip(*rocket);
    rocket->solid = false;
    launch(std::move(rocket), "rocketlauncher", shooter,
           muzzleOf(shooter, position, aim, rocketInset), aim);
    playFiringSound(sound::rocketFire, enemyLauncherChannel, position);
    return true;
}

void RocketWeapon::applyDefinitions() {
    const WeaponDefinitions::Rocket& d = weaponDefinitions().rocket;
    delay = d.delay;
    damage = projectileDamage = d.damage;
    projectileSpeed = d.speed;
    projectileRadius = d.radius;
    knockback = projectileKnockback = d.knockback;
}

GrenadeWeapon::GrenadeWeapon() {
    projectileKnockback = 1;
    GrenadeWeapon::applyDefinitions();
}

bool GrenadeWeapon::fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) {
    if (!beginShot(time))
        return false;
    const WeaponDefinitions::Grenade& d = weaponDefinitions().grenade;
    auto grenade = bodyPool().take<GrenadeProjectile>();
    equip(*grenade);
    const bool weightless = d.mass <= leastGrenadeMass;
    grenade->mass = weightless ? 0 : d.mass;
    grenade->invMass = weightless ? 0 : 1 / d.mass;
    grenade->bounce = d.bounceEnergy;
    grenade->lifetime = d.lifetime;
    grenade->fuseTime = time + d.lifetime;
    launch(std::move(grenade), "grenadelauncher", shooter,
           muzzleOf(shooter, position, aim, grenadeInset), aim);
    playFiringSound(sound::grenadeFire, enemyLauncherChannel, position);
    return true;
}

void GrenadeWeapon::applyDefinitions() {
    const WeaponDefinitions::Grenade& d = weaponDefinitions().grenade;
    delay = d.delay;
    damage = projectileDamage = d.damage;
    projectileSpeed = d.speed;
    projectileRadius = d.radius;
}

bool PlasmaPistolWeapon::fire(GameBody* shooter, const Vector& position, const Vector& aim,
                              float time) {
    if (!beginShot(time))
        return false;
    auto bolt = bodyPool().take<PlasmaPistolProjectile>();
    bolt->damage = static_cast<float>(damage);
    bolt->noFlash = enemyWeapon;
    bolt->solid = false;
    launch(std::move(bolt), "plasmapistol", shooter, muzzleOf(shooter, position, aim, rocketInset),
           aim);
    playFiringSound(sound::plasmaPistolFire, enemyPistolChannel, position);
    return true;
}

}  // namespace bc
