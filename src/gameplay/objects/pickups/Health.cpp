// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/Health.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/player/Player.h"
#include "particles/ParticleManager.h"

namespace bc {

namespace {

/// Seconds within which the effect of a collected mega health is gone.
constexpr float fadeSeconds = 10;

}  // namespace

Health::Health() {
    type = "health";
    texture = "data/images/health.png";
    category = category::health;
}

std::unique_ptr<Body> Health::create() const {
    return std::make_unique<Health>();
}

void Health::applyAttributes(const std::map<std::string, std::string>& attributes) {
    RespawnableBody::applyAttributes(attributes);
    Attributes(attributes).read("amount", amount);
}

bool Health::wanted(Player& player) const {
    return player.getHealth() < player.progress.maxHealth;
}

void Health::give(Player& player) {
    player.addHealth(amount);
}

void Health::pickupFeedback() {
    announce(sound::healthPickup, "Health");
}

QuickHealth::QuickHealth() {
    type = "quickhealth";
    texture = "data/images/quickhealth.png";
    respawnDelay = 10000;
    amount = 20;
}

std::unique_ptr<Body> QuickHealth::create() const {
    return std::make_unique<QuickHealth>();
}

void QuickHealth::pickupFeedback() {
    announce(sound::healthPickup, "Quick Health");
}

MegaHealth::MegaHealth() {
    type = "megahealth";
    texture = "data/images/megahealth.png";
    hasGlow = true;
}

MegaHealth::~MegaHealth() {
    endEffect(0);
}

std::unique_ptr<Body> MegaHealth::create() const {
    return std::make_unique<MegaHealth>();
}

void MegaHealth::startEffect() {
    const ParticleSystem* system = startParticles("megahealth", pos);
    effect_ = system != nullptr ? system->id() : none;
}

void MegaHealth::endEffect(float seconds) {
    if (ParticleSystem* system = particleManager().find(effect_))
        system->stop(seconds);
    effect_ = none;
}

void MegaHealth::onLoaded() {
    Health::onLoaded();
    if (isAvailable())
        startEffect();
}

void MegaHealth::respawn() {
    Health::respawn();
    startEffect();
}

void MegaHealth::onThink(float dt) {
    if (!isAvailable() && effect_ != none)
        endEffect(fadeSeconds);
    Health::onThink(dt);
}

void MegaHealth::give(Player& player) {
    amount = player.progress.maxHealth;
    Health::give(player);
}

void MegaHealth::pickupFeedback() {
    announce(sound::megaHealth, "MegaHealth");
    floatText("Health");
}

}  // namespace bc
