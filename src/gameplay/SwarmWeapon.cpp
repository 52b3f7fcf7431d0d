// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/SwarmWeapon.h"

#include "core/Random.h"
#include "gameplay/Effects.h"
#include "gameplay/GameCategories.h"
#include "gameplay/GameplaySingleton.h"
#include "gameplay/PlayLog.h"
#include "gameplay/Player.h"
#include "gameplay/RadiusDamage.h"
#include "gameplay/SoundIds.h"
#include "gameplay/Spawning.h"
#include "gameplay/SwarmMember.h"
#include "particles/ParticleManager.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

namespace bc {

namespace {

/// Mixing channel of enemies' sounds of these weapons.
constexpr int enemyChannel = 2;
/// Distance from one released member to the next, units.
constexpr float memberSpacing = 18;
constexpr float fastestRelease = 400;
constexpr int bursts = 2;

}  // namespace

int SwarmWeapon::membersFor(const GameBody* shooter) {
    constexpr int few = 3;
    constexpr int usual = 4;
    constexpr int many = 5;
    const auto* player = dynamic_cast<const Player*>(shooter);
    if (player == nullptr)
        return usual;
    const int level = player->progress.swarmLevel;
    if (level == 1 || level == 2)
        return few;
    return level == PlayerProperties::lastTrackLevel ? many : usual;
}

bool SwarmWeapon::fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) {
    if (shooter == nullptr || !beginShot(time))
        return false;
    const int members = membersFor(shooter);
    for (int i = 1; i <= members; ++i) {
        const float ahead = memberSpacing * static_cast<float>(i) + shooter->radius;
        SwarmMember::release(*shooter, shooter->pos + aim * ahead,
                             randomDirection() * randomRange(0, fastestRelease));
    }
    for (int i = 0; i < bursts; ++i)
        startParticles("swarmburst", shooter->pos, shockRaise);
    playlog::shot("swarm", shooter, shooter->pos, shooter->pos + aim, nullptr);
    playFiringSound(sound::swarmFire, enemyChannel, position);
    return true;
}

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
