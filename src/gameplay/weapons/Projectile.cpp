// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/Projectile.h"

#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/RadiusDamage.h"
#include "gameplay/actors/Truncate.h"
#include "particles/ParticleManager.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

namespace bc {

namespace {

/// Of a fuse that a save does not tell of.
constexpr float unknown = -1;

}  // namespace

Projectile::Projectile() {
    type = "projectile";
    Projectile::renew();
}

std::unique_ptr<Body> Projectile::create() const {
    return std::make_unique<Projectile>();
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

void Projectile::loadState(const TiXmlElement& e) {
    PooledBody::loadState(e);
    // What a save leaves out stays as the class has it.
    const auto readFloat = [&e](const char* name, float& value) {
        if (xml::has(e, name))
            value = xml::readFloat(e, name);
    };
    readFloat("speed", speed);
    readFloat("damage", damage);
    readFloat("blastradius", blastRadius);
    readFloat("knockback", knockback);
    readFloat("lifetime", lifetime);
    fuseTime = unknown;
    readFloat("fusetime", fuseTime);
    exploded = xml::readBool(e, "exploded");
    if (xml::has(e, "damagetype"))
        damageType = xml::readInt(e, "damagetype");
    noFlash = xml::readBool(e, "noflash");
    xml::readValue(e, "direction", direction);
}

void Projectile::saveState(TiXmlElement& e) const {
    PooledBody::saveState(e);
    xml::writeFloat(e, "speed", speed);
    xml::writeFloat(e, "damage", damage);
    xml::writeFloat(e, "blastradius", blastRadius);
    xml::writeFloat(e, "knockback", knockback);
    xml::writeFloat(e, "lifetime", lifetime);
    xml::writeFloat(e, "fusetime", fuseTime);
    xml::writeBool(e, "exploded", exploded);
    xml::writeInt(e, "damagetype", damageType);
    xml::writeBool(e, "noflash", noFlash);
    xml::writeValue(e, "direction", direction);
}

void Projectile::dumpState(TiXmlElement& debug) const {
    PooledBody::dumpState(debug);
    xml::writeFloat(debug, "speed", speed);
    xml::writeFloat(debug, "damage", damage);
    xml::writeFloat(debug, "blastradius", blastRadius);
    xml::writeFloat(debug, "knockback", knockback);
    xml::writeFloat(debug, "lifetime", lifetime);
    xml::writeFloat(debug, "fusetime", fuseTime);
    xml::writeBool(debug, "exploded", exploded);
    xml::writeInt(debug, "damagetype", damageType);
    xml::writeBool(debug, "noflash", noFlash);
    xml::writeValue(debug, "direction", direction);
}

}  // namespace bc
