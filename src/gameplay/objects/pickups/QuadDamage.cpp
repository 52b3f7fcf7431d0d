// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/QuadDamage.h"

#include "gameplay/player/Player.h"
#include "particles/ParticleManager.h"

namespace bc {

QuadDamage::QuadDamage(const char* typeName, float factor, const char* effect)
    : factor_(factor), effect_(effect) {
    texture = std::string("data/images/") + typeName + ".png";
    hasGlow = true;
    respawnDelay = 30000;
}

QuadDamage::QuadDamage() : QuadDamage("quad", 4, "quadpickup") {}

void QuadDamage::give(Player& player) {
    player.giveQuad(factor_);
    startParticles(effect_, pos);
}

}  // namespace bc
