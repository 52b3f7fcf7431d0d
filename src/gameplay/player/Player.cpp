// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/player/Player.h"

#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/actors/Truncate.h"
#include "gameplay/weapons/FireableWeapon.h"
#include "gameplay/weapons/GrappleProjectile.h"
#include "hud/GameHUD.h"
#include "particles/ParticleManager.h"
#include "ports/IGame.h"
#include "resources/FileSystem.h"

#include <algorithm>

namespace bc {

namespace {

constexpr float bodyMass = 100;
// Upward part of the normal of ground that can be stood on: 60 degrees at the steepest.
constexpr float leastStanding = 0.5F;
/// Seconds within which the glow of an ended power-up is gone.
constexpr float effectFade = 10;

const std::string_view quadEffect = "quadeffect";
const std::string_view invincibleEffect = "invincibleeffect";
const std::string_view exhaustEffect = "boostflame";

}  // namespace

Player::Player() {
    type = "player";
    id = "anarch";
    setTexture("data/images/player.png");
    glowTexture = "data/images/playerglow.png";
    textured = true;
    clampTexture = true;
    outlined = false;
    hasGlow = true;
    glowSteps = 4;
    category = category::player;
    team.set(team::player);
    takesDamage = true;
    thinks = true;
}

Player::~Player() {
    if (!GameplaySingleton::exists() || GameplaySingleton::instance().craft != this)
        return;
    GameplaySingleton& play = GameplaySingleton::instance();
    play.craft = nullptr;
    if (play.hud != nullptr)
        play.hud->setPlayer(nullptr);
}

void Player::addHealth(int n) {
    maxHealth = progress.maxHealth;
    health = std::min(saturated(0LL + health + n), maxHealth);
}

void Player::addArmour(int n) {
    maxArmour = progress.maxArmour;
    armour = std::min(saturated(0LL + armour + n), maxArmour);
}

void Player::attachEffect(std::string_view name) {
    if (ParticleSystem* system = startParticles(name, pos))
        attachParticleSystem(*system);
}

void Player::addQuadEffect() {
    attachEffect(quadEffect);
}

void Player::addInvincibleEffect() {
    attachEffect(invincibleEffect);
}

void Player::fadeEffect(std::string_view name, float seconds) {
    const auto& attached = particleSystems();
    const auto found = std::find_if(attached.begin(), attached.end(), [name](const auto* system) {
        return system->definitionId() == name;
    });
    if (found == attached.end())
        return;
    ParticleSystem& system = **found;
    system.stop(seconds);
    detachParticleSystem(system);
}

void Player::startExhaust() {
    attachEffect(exhaustEffect);
}

void Player::stopExhaust() {
    // What is burning burns out; nothing new is lit.
    fadeEffect(exhaustEffect, 0);
}

void Player::giveInvincibility(float factor) {
    if (!hasInvinc)
        addInvincibleEffect();
    hasInvinc = true;
    damageTakenFactor = factor;
    invincTime = levelTime() + powerUpTime;
    playSoundAt(sound::powerUp, renderpos);
    showMessage("Invincibility");
}

void Player::giveQuad(float factor) {
    if (!hasQuad)
        addQuadEffect();
    hasQuad = true;
    damageFactor = std::max(damageFactor, factor);
    quadTime = levelTime() + powerUpTime;
    playSoundAt(sound::powerUp, renderpos);
    showMessage("Quad Damage");
}

void Player::addCash(int n) {
    progress.cash = saturated(0LL + progress.cash + n);
    progress.checkUpgrade();
    playSoundAt(sound::cash, renderpos);
    showMessage("Cash");
    if (!progress.upgradePending)
        return;
    progress.upgradePending = false;
    playSoundAt(sound::upgrade, renderpos);
    showAnchoredMessage(progress.upgradeMessage, anchorCentre);
}

void Player::fireActiveWeapon() {
    if (isfiring)
        inventory.fire(this, pos, aim, levelTime(), inventory.activeWeapon());
}

void Player::stopActiveWeapon() {
    inventory.unfire(inventory.activeWeapon(), levelTime());
}

void Player::aimAt(const Vector& place) {
    // A cursor on the very middle of the craft points nowhere, or wherever rounding has it.
    constexpr float nearest = 0.25F;  // less than half a pixel
    const Vector towards(place.x - renderpos.x, place.y - renderpos.y, place.z - renderpos.z);
    if (towards.length() > nearest)
        aim = normalised(towards);
    mouseWorldPos = place;
}

void Player::releaseGrapple() {
    inventory.unfire(weapon::grapple, levelTime());
}

void Player::onThink(float /*dt*/) {
    const float now = levelTime();
    inventory.performDueChange(now);
    endPowerUps(now);
    if (dead && respawnTime < now)
        requestRespawn(now);
}

void Player::endPowerUps(float now) {
    if (hasQuad && quadTime < now) {
        quadTime = 0;
        hasQuad = false;
        damageFactor = 1;
        fadeEffect(quadEffect, effectFade);
        playSoundAt(sound::quadEnd, renderpos);
    }
    if (hasInvinc && invincTime < now) {
        invincTime = 0;
        hasInvinc = false;
        damageTakenFactor = 1;
        fadeEffect(invincibleEffect, effectFade);
    }
}

void Player::requestRespawn(float now) {
    revivePending = true;
    // A load that fails leaves the level as it is: ask again then, not with every thought.
    respawnTime = now + respawnDelay;
    if (IGame* game = GameplaySingleton::instance().game()) {
        const std::string& save = game->getSaveName();
        // Who died before anything was saved starts the level anew.
        if (files::resolve("saves/" + save + ".xml").has_value())
            game->requestLoadGame(save);
        else
            game->requestMapLoad(game->getCurrentLevel(), "");
    }
    appearEffect(pos);
}

void Player::onTouch(const TouchInfo& touch) {
    GameBody::onTouch(touch);
    const Body& other = *touch.other;
    if (!solid || !other.solid || !acceptsCollision(other) || !other.acceptsCollision(*this))
        return;
    // A crate has its turn before the craft on top of it and leaves nothing for the craft's own:
    // without this the craft could not jump from crates. The normal points at the first of the
    // pair.
    const Vector apart = pos - other.pos;
    const bool isSecond = touch.normal->x * apart.x + touch.normal->y * apart.y < 0;
    if (isSecond && -touch.normal->y >= leastStanding)
        standsOnEarlier = true;
}

void Player::die() {
    if (dying || dead)
        return;
    const float now = levelTime();
    inventory.unfireAll(now);
    stopExhaust();
    boostLeft = 0;
    deathEffect();
    mass = invMass = 0;
    gravitymultiplier = 0;
    dying = true;
    dead = true;
    revivePending = true;
    visible = false;
    solid = false;
    takesDamage = false;
    vel = Vector();
    respawnTime = now + respawnDelay;
}

void Player::revive() {
    if (!revivePending)
        return;
    revivePending = false;
    dead = false;
    mass = bodyMass;
    invMass = 1 / bodyMass;
    gravitymultiplier = 1;
    visible = true;
    solid = true;
    takesDamage = true;
    dying = false;
    health = progress.maxHealth;
}

void Player::onLoaded() {
    revive();
    // A save knows that a power-up or a burst is in force, but not its glow.
    if (hasQuad && !hasEffect(quadEffect))
        addQuadEffect();
    if (hasInvinc && !hasEffect(invincibleEffect))
        addInvincibleEffect();
    if (boostLeft > 0 && !hasEffect(exhaustEffect))
        startExhaust();
}

bool Player::hasEffect(std::string_view name) const {
    const auto& attached = particleSystems();
    return std::any_of(attached.begin(), attached.end(),
                       [name](const auto* system) { return system->definitionId() == name; });
}

void Player::onBodyRemoved(const Body& gone) {
    GameBody::onBodyRemoved(gone);
    inventory.onBodyRemoved(gone);
    if (static_cast<const Body*>(grappleHook) == &gone) {
        grappleHook = nullptr;
        grappling = false;
    }
}

Player* currentPlayer() {
    return dynamic_cast<Player*>(GameplaySingleton::instance().craft);
}

}  // namespace bc
