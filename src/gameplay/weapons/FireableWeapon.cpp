// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/FireableWeapon.h"

#include "gameplay/actors/GameBody.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "ports/ISound.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

namespace bc {

bool FireableWeapon::fire(GameBody* /*shooter*/, const Vector& /*position*/, const Vector& /*aim*/,
                          float /*time*/) {
    return false;
}

void FireableWeapon::unfire(float /*time*/) {}

bool FireableWeapon::beginShot(float time) {
    if (!canFire(time))
        return false;
    nextFireTime = time + delay;
    return true;
}

int FireableWeapon::damageBy(const GameBody* shooter) const {
    return shooter != nullptr ? shooter->scaleOutgoingDamage(damage) : damage;
}

void FireableWeapon::playFiringSound(int soundId, int enemyChannel, const Vector& position) const {
    ISound* sounds = GameplaySingleton::instance().sound();
    if (sounds == nullptr)
        return;
    if (enemyWeapon)
        sounds->playIdOnChannelAt(soundId, enemyChannel, position, 0);
    else
        sounds->playIdAt(soundId, position, 0);
}

void FireableWeapon::dumpState(TiXmlElement& e) const {
    xml::writeFloat(e, "nextfiretime", nextFireTime);
    xml::writeFloat(e, "delay", delay);
    xml::writeFloat(e, "knockback", knockback);
    xml::writeInt(e, "damage", damage);
    xml::writeFloat(e, "range", range);
    xml::writeFloat(e, "spread", spread);
    xml::writeBool(e, "enemyweapon", enemyWeapon);
}

}  // namespace bc
