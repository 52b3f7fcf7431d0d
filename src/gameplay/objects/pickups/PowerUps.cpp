// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/PowerUps.h"

#include "gameplay/player/Player.h"
#include "particles/ParticleManager.h"

namespace bc {

QuadDamage::QuadDamage(const char* typeName, float factor, const char* effect)
    : factor_(factor), effect_(effect) {
    type = typeName;
    texture = std::string("data/images/") + typeName + ".png";
    hasGlow = true;
    respawnDelay = 30000;
}

QuadDamage::QuadDamage() : QuadDamage("quad", 4, "quadpickup") {}

std::unique_ptr<Body> QuadDamage::create() const {
    return std::make_unique<QuadDamage>();
}

void QuadDamage::give(Player& player) {
    player.giveQuad(factor_);
    startParticles(effect_, pos);
}

MegaQuadDamage::MegaQuadDamage() : QuadDamage("megaquad", 8, "megaquadpickup") {}

std::unique_ptr<Body> MegaQuadDamage::create() const {
    return std::make_unique<MegaQuadDamage>();
}

Invincibility::Invincibility() {
    type = "invincibility";
    texture = "data/images/invincibility.png";
    hasGlow = true;
    respawnDelay = 60000;
}

std::unique_ptr<Body> Invincibility::create() const {
    return std::make_unique<Invincibility>();
}

void Invincibility::give(Player& player) {
    player.giveInvincibility(0);
    startParticles("invinciblepickup", pos);
}

}  // namespace bc
