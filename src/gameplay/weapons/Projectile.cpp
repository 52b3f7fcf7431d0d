// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/Projectile.h"

#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/RadiusDamage.h"
#include "gameplay/actors/Truncate.h"
#include "particles/ParticleManager.h"
#include "world/BodyFields.h"

namespace bc {

namespace {

/// Of a fuse that a save does not tell of.
constexpr float unknown = -1;

}  // namespace

Projectile::Projectile() {
    type = "projectile";
    Projectile::renew();
}

void Projectile::fields(BodyFields& f) {
    PooledBody::fields(f);
    // What a save leaves out stays as the class has it.
    f.kept("speed", speed, speed);
    f.kept("damage", damage, damage);
    f.kept("blastradius", blastRadius, blastRadius);
    f.kept("knockback", knockback, knockback);
    f.kept("lifetime", lifetime, lifetime);
    f.kept("fusetime", fuseTime, unknown);
    f.kept("exploded", exploded);
    f.kept("damagetype", damageType, damageType);
    f.kept("noflash", noFlash);
    f.kept("direction", direction);
}

void Projectile::renew() {
    PooledBody::renew();
    mass = 10;
    invMass = 0.1F;
    category = category::projectile;
    thinks = true;
    thinkInterval = 0;
    showDamage = false;
    entity = true;
    outlined = false;
    textured = true;
    clampTexture = true;
    speed = 400;
    damage = 10;
    blastRadius = 64;
    knockback = lifetime = fuseTime = 0;
    exploded = noFlash = false;
    damageType = 0;
    direction = Vector();
}

void Projectile::explode() {
    if (exploded)
        return;
    exploded = true;
    int points = truncated(damage);
    if (owner != nullptr)
        points = owner->scaleOutgoingDamage(points);
    radiusDamage(pos, blastRadius, knockback, points, damageType, owner);
    blastEffects();
    solid = false;
    die();
}

void Projectile::blastEffects() {
    explosionEffects(pos);
    if (!noFlash)
        flashScreen(RGBAColour(255, 255, 255, 150));
}

void Projectile::attachTrail(std::string_view effect, int count) {
    for (int i = 0; i < count; ++i)
        if (ParticleSystem* trail = startParticles(effect, pos))
            attachParticleSystem(*trail);
}

bool Projectile::isStoppedBy(const Body& other) const {
    return other.solid && (other.visible || other.category == category::clip) && &other != owner &&
           acceptsCollision(other) && other.acceptsCollision(*this);
}

void Projectile::onBeforeTargets() {
    PooledBody::onBeforeTargets();
    if (owner != nullptr)
        std::erase(owner->children, this);
    // Only now the clock is the one of the saved level.
    if (fuseTime == unknown)
        fuseTime = levelTime() + lifetime;
}

}  // namespace bc
