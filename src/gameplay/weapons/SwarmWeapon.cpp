// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/SwarmWeapon.h"

#include "core/Random.h"
#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/PlayLog.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/actors/Spawning.h"
#include "gameplay/weapons/SwarmMember.h"
#include "particles/ParticleManager.h"

namespace bc {

namespace {

/// Mixing channel of enemies' firing sounds.
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
    const int level = shooter->swarmLevel();
    if (level == 1 || level == 2)
        return few;
    return level == SwarmMember::levels ? many : usual;
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

}  // namespace bc
