// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/GrenadeProjectile.h"

#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Gib.h"
#include "world/BodyFields.h"

namespace bc {

namespace {

constexpr float grenadeSize = 8;

/// What it bounces off. An enemy that stands fast is none of it.
bool isWall(const Body& body) {
    const auto* target = dynamic_cast<const GameBody*>(&body);
    return isStaticGeometry(body) && (target == nullptr || !target->takesDamage);
}

}  // namespace

GrenadeProjectile::GrenadeProjectile() {
    type = "grenadeprojectile";
    setTexture("data/images/grenade.png");
    glowTexture = "data/images/grenade.png";
    makeBox(grenadeSize, grenadeSize);
    GrenadeProjectile::renew();
}

void GrenadeProjectile::fields(BodyFields& f) {
    Projectile::fields(f);
    f.saved("nextbouncesound", nextBounceSound);
}

void GrenadeProjectile::renew() {
    Projectile::renew();
    category = category::grenade;
    mass = 5;
    invMass = 0.2F;
    bounce = 0.3F;
    speed = 170;
    damage = 120;
    blastRadius = 32;
    knockback = 1;
    lifetime = 3000;
    damageType = damage::grenade;
    hasGlow = true;
    glowSteps = 1;
    nextBounceSound = 0;
}

void GrenadeProjectile::attachEffects() {
    attachTrail("debugtrail");
}

void GrenadeProjectile::onThink(float /*dt*/) {
    if (!exploded && fuseTime < levelTime())
        explode();
}

bool GrenadeProjectile::acceptsCollision(const Body& other) const {
    return &other != owner;
}

void GrenadeProjectile::onTouch(const TouchInfo& touch) {
    if (exploded)
        return;
    const Body& other = *touch.other;
    const bool wall = isWall(other);
    if (wall)
        playBounceSound(*this, nextBounceSound);
    if (!other.solid || !other.visible || (wall && !other.nonmassmover))
        return;
    const auto* game = dynamic_cast<const GameBody*>(&other);
    if (&other == owner || (game != nullptr && game->bouncesGrenades()))
        return;
    if (acceptsCollision(other) && other.acceptsCollision(*this))
        explode();
}

}  // namespace bc
