// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/GameBody.h"

#include "command/GameVar.h"
#include "core/Log.h"
#include "core/Random.h"
#include "core/Text.h"
#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/PlayLog.h"
#include "gameplay/actors/Rules.h"
#include "gameplay/actors/Spawning.h"
#include "gameplay/actors/Truncate.h"
#include "particles/ParticleManager.h"
#include "world/World.h"

#include <algorithm>

namespace bc {

namespace {

/// Levels that wire bodies in a circle are cut off here.
constexpr int maxTriggerDepth = 64;
/// What one event can set off in all; a level has some hundreds of bodies.
constexpr int maxTriggersAtOnce = 10000;

/// What the difficulty makes of damage; without the variable the game is played as normal.
float difficultyFactor(bool playersSide) {
    constexpr int easiest = 1;
    constexpr int hardest = 4;
    constexpr int normal = 3;
    constexpr float forPlayer[] = {0.5F, 0.75F, 1.0F, 1.25F};
    constexpr float forOthers[] = {1.5F, 1.25F, 1.0F, 1.0F};
    const GameVar* var = vars().findVar("difficulty");
    const int difficulty = std::clamp(var != nullptr ? var->intValue() : normal, easiest, hardest);
    return (playersSide ? forPlayer : forOthers)[difficulty - easiest];
}

}  // namespace

std::unique_ptr<Body> GameBody::create() const {
    return std::make_unique<GameBody>();
}

void GameBody::addHealth(int n) {
    health = std::min(saturated(0LL + health + n), maxHealth);
}

void GameBody::addArmour(int n) {
    armour = std::min(saturated(0LL + armour + n), maxArmour);
}

bool GameBody::canBeHurtBy(int /*damageType*/) const {
    return true;
}

int GameBody::adjustIncomingDamage(int amount, int /*damageType*/) {
    return amount;
}

int GameBody::scaleOutgoingDamage(int amount) const {
    return truncated(damageFactor * static_cast<float>(amount));
}

void GameBody::absorbDamage(int damage, int& absorbed) {
    const int left = std::max(saturated(0LL + armour - damage), 0);
    absorbed = armour - left;
    armour = left;
}

void GameBody::takeDamage(int amount, int damageType) {
    if (dying || inLimbo)
        return;
    if (showDamage)
        painEffect();
    if (!takesDamage || godMode || !canBeHurtBy(damageType))
        return;
    int d = adjustIncomingDamage(amount, damageType);
    if (hasInvinc) {
        d = truncated(damageTakenFactor * static_cast<float>(d));
        if (d == 0)
            return;
    }
    d = truncated(difficultyFactor(team.test(team::player)) * static_cast<float>(d));
    int absorbed = 0;
    absorbDamage(d, absorbed);
    health = saturated(0LL + health + absorbed - d);
    playlog::damage(*this, d, damageType, absorbed, health);
    if (health < 1)
        die();
}

void GameBody::die() {
    if (dying || inLimbo)
        return;
    numLives = saturated(numLives - 1LL);
    dying = true;
    deathTime = levelTime() + deathDelay;
    const bool forGood = numLives < 1;
    if (owner != nullptr && forGood) {
        owner->removeChild(this);
        owner = nullptr;
    }
    if (forGood)
        releaseChildren();
    deathEffect();
    if (!forGood) {
        enterLimbo();
        return;
    }
    inLimbo = false;
    fireTargets();
    removeFromWorld(*this);
}

void GameBody::enterLimbo() {
    dying = false;
    vel = Vector();
    visible = false;
    solid = false;
    inLimbo = true;
    reviveTime = levelTime() + limboTime;
    limboPlace = pos;
}

void GameBody::leaveLimbo() {
    visible = true;
    solid = true;
    inLimbo = false;
    dying = false;
    health = initialHealth;
}

void GameBody::think(float dt) {
    if (!inLimbo)
        onThink(dt);
}

void GameBody::update(float /*dt*/) {
    if (!inLimbo)
        return;
    // Not solid, it would sink into its floor by what gravity adds in each step.
    vel = Vector();
    placeAt(*this, limboPlace);
    visible = false;
    if (reviveTime < levelTime())
        leaveLimbo();
}

void GameBody::removeChild(GameBody* child) {
    const auto found = std::find(children.begin(), children.end(), child);
    if (found == children.end())
        return;
    children.erase(found);
    if (numAlive > 0)
        --numAlive;
}

void GameBody::releaseChildren() {
    for (GameBody* child : children)
        child->owner = nullptr;
    children.clear();
}

void GameBody::adoptBy(GameBody& newOwner) {
    if (owner != nullptr)
        std::erase(owner->children, this);
    owner = &newOwner;
    newOwner.children.push_back(this);
}

void GameBody::onBodyRemoved(const Body& gone) {
    Body::onBodyRemoved(gone);
    if (owner == &gone)
        owner = nullptr;
    // A child that leaves without having died (a level's end) is no longer alive either.
    const auto isGone = [&gone](const GameBody* child) { return child == &gone; };
    const auto found = std::find_if(children.begin(), children.end(), isGone);
    if (found != children.end())
        removeChild(*found);
}

void GameBody::onBeforeTargets() {
    Body::onBeforeTargets();
    owner = nullptr;
    if (ownerId == 0)
        return;
    World* world = GameplaySingleton::instance().world();
    if (world == nullptr)
        return;
    const auto isOwner = [this](const Body* body) {
        return body != this && body->autoid == ownerId && dynamic_cast<const GameBody*>(body);
    };
    const auto& bodies = world->allBodies();
    const auto found = std::find_if(bodies.begin(), bodies.end(), isOwner);
    if (found != bodies.end()) {
        adoptBy(dynamic_cast<GameBody&>(**found));
        return;
    }
    // The player is in the world only after the bodies of the level.
    GameBody* craft = GameplaySingleton::instance().craft;
    if (craft != nullptr && isOwner(craft))
        adoptBy(*craft);
}

void GameBody::deathEffect() {
    if (!showDamage)
        return;
    startParticles("debugbloodexplosion", pos);
    startParticles("deathghost", pos);
    if (health < gibHealth && canGib)
        throwGibs(pos);
}

void GameBody::painEffect() {
    startParticles("debugblood", pos);
}

void GameBody::throwGibs(const Vector& position) {
    constexpr int fewest = 2;
    constexpr int spread = 4;
    int count = fewest + randomInt() % spread;
    Rules* rules = GameplaySingleton::instance().rules;
    if (rules == nullptr)
        return;
    rules->reserveGibs(count);
    if (count <= 0)
        return;
    for (int i = 0; i < count; ++i)
        rules->launchGib(position);
    flashScreen(RGBAColour(255, 10, 20, 150));
}

void GameBody::spawnText(const Vector& position, std::string_view text, int size, bool shadow,
                         float scale, const std::string& font) {
    if (Rules* rules = GameplaySingleton::instance().rules)
        rules->floatText(position, text, size, shadow, scale, font);
}

void GameBody::trigger(GameBody* activator) {
    static int depth = 0;
    static int fired = 0;
    static bool told = false;
    if (depth == 0) {
        fired = 0;
        told = false;
    }
    // Depth alone would let a circle of relays with two targets each go on for ages.
    if (depth >= maxTriggerDepth || fired >= maxTriggersAtOnce) {
        if (!told)
            logLine("Triggers in a circle, cut off at " + id);
        told = true;
        return;
    }
    playlog::trigger(*this, activator);
    ++depth;
    ++fired;
    onTriggered(activator);
    --depth;
}

void GameBody::fireTargets() {
    fireTargetsAs(this);
}

void GameBody::fireTargetsAs(GameBody* activator) {
    // By index: what is triggered may change the list.
    for (std::size_t i = 0; i < targetBodies.size(); ++i)
        if (auto* target = dynamic_cast<GameBody*>(targetBodies[i]))
            target->trigger(activator);
}

bool GameBody::isUntouchable() const {
    return flags.test(bodyflag::untouchable);
}

bool GameBody::isAllyOf(const GameBody& other) const {
    return team.test(team::player) && other.team.test(team::player);
}

}  // namespace bc
