// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/MeleeWeapon.h"

#include "gameplay/actors/GameBody.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/PlayLog.h"
#include "gameplay/actors/RadiusDamage.h"
#include "gameplay/actors/SoundIds.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

namespace bc {

namespace {

/// Mixing channel of enemies' firing sounds.
constexpr int enemyChannel = 2;

}  // namespace

bool MeleeWeapon::fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) {
    if (!beginShot(time))
        return false;
    playlog::shot("melee", shooter, position, position + aim, nullptr);
    radiusDamage(position, reach, knockback, damageBy(shooter), damage::environment, shooter);
    playFiringSound(sound::melee, enemyChannel, position);
    return true;
}

void MeleeWeapon::dumpState(TiXmlElement& e) const {
    FireableWeapon::dumpState(e);
    xml::writeFloat(e, "reach", reach);
}

}  // namespace bc
