// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/MegaHealth.h"

#include "gameplay/actors/Effects.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/player/Player.h"
#include "particles/ParticleManager.h"

namespace bc {

namespace {

/// Seconds within which the effect of a collected mega health is gone.
constexpr float fadeSeconds = 10;

}  // namespace

MegaHealth::MegaHealth() {
    texture = "data/images/megahealth.png";
    hasGlow = true;
}

MegaHealth::~MegaHealth() {
    endEffect(0);
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
