// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/SwarmMember.h"

#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Pursuit.h"
#include "gameplay/actors/Sight.h"
#include "gameplay/actors/Spawning.h"
#include "world/BodyFields.h"

namespace bc {

namespace {

constexpr float memberSize = 20;
/// How far it looks for enemies and for the player.
constexpr float sightRange = 290;
constexpr float pursuitSpeed = 200;
/// It does not drive nearer to an enemy, and to the player.
constexpr float enemyDistance = 16;
constexpr float playerDistance = 64;
/// Machines that cannot move are struck from farther away.
constexpr float machineReach = 64;

struct Strength {
    int damage;
    int health;
};
constexpr Strength strengths[SwarmMember::levels] = {
    {10, 60}, {15, 85}, {20, 100}, {30, 150}, {40, 200}};
constexpr Strength ofOtherLevels = {5, 50};

const Strength& strengthOf(int swarmLevel) {
    const bool known = swarmLevel >= 1 && swarmLevel <= SwarmMember::levels;
    return known ? strengths[swarmLevel - 1] : ofOtherLevels;
}

int playersSwarmLevel() {
    const GameBody* craft = GameplaySingleton::instance().craft;
    return craft != nullptr ? craft->swarmLevel() : 0;
}

}  // namespace

SwarmMember::SwarmMember() {
    type = "swarmmember";
    setTexture("data/images/swarmmember.png");
    textured = true;
    outlined = false;
    clampTexture = true;
    mass = 10;
    invMass = 0.1F;
    gravitymultiplier = 0;
    takesDamage = true;
    health = initialHealth = ofOtherLevels.health;
    team.set(team::player);
    entity = true;
    thinks = true;
    thinkInterval = 0;
    usesDefaultShape = true;
    defaultWidth = defaultHeight = memberSize;
    weapon.enemyWeapon = true;
}

void SwarmMember::fields(BodyFields& f) {
    GameBody::fields(f);
    f.kept("lifetime", lifetime);
    f.saved("nextfiretime", weapon.nextFireTime);
    // The player, whose level it was released with, is read later.
    f.saved("weapondamage", weapon.damage, strengthOf(playersSwarmLevel()).damage);
    f.shown("deathtime", deathTime);
    f.shownPart(weapon);
}

void SwarmMember::makeDefaultShape() {
    makeBox(memberSize, memberSize);
}

void SwarmMember::applySwarmLevel() {
    const Strength& numbers = strengthOf(playersSwarmLevel());
    weapon.damage = numbers.damage;
    health = initialHealth = numbers.health;
}

void SwarmMember::release(GameBody& shooter, const Vector& position, const Vector& velocity) {
    auto member = std::make_unique<SwarmMember>();
    member->makeDefaultShape();
    member->applySwarmLevel();
    member->vel = velocity;
    member->deathTime = levelTime() + member->lifetime;
    if (SwarmMember* placed = spawnAt(std::move(member), position)) {
        placed->adoptBy(shooter);
        ++shooter.numAlive;
    }
}

void SwarmMember::onThink(float /*dt*/) {
    if (deathTime < levelTime()) {
        die();
        return;
    }
    const GameBody* enemy = nearestEnemy(*this, sightRange);
    if (enemy != nullptr && canSee(*this, *enemy, false))
        hunt(*enemy);
    else
        followPlayer();
}

void SwarmMember::hunt(const GameBody& enemy) {
    const Vector difference = enemy.pos - pos;
    const float away = difference.length();
    if (away > enemyDistance)
        approach(*this, enemy, pursuitSpeed, pursuitSpeed);
    const float reach = enemy.isMachine() ? weapon.reach + machineReach : weapon.reach;
    if (away < reach)
        weapon.fire(this, pos, normalised(difference), levelTime());
}

void SwarmMember::followPlayer() {
    const GameBody* player = GameplaySingleton::instance().craft;
    if (player == nullptr)
        return;
    const float away = distance(pos, player->pos);
    if (away > playerDistance && away < sightRange)
        approach(*this, *player, pursuitSpeed, pursuitSpeed);
}

}  // namespace bc
