// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/CashPickup.h"

#include "gameplay/actors/GameCategories.h"
#include "gameplay/player/Player.h"
#include "world/BodyFields.h"

namespace bc {

CashPickup::CashPickup() {
    texture = "data/images/cash.png";
    glowTexture = texture;
    hasGlow = true;
    glowSteps = 2;
    canRespawn = false;
}

void CashPickup::fields(BodyFields& f) {
    RespawnableBody::fields(f);
    f.param("amount", amount, "Cash that it gives.").inLevels("1");
    // What an enemy dropped stands in no level.
    f.saved("amount", amount, amount);
}

bool CashPickup::acceptsCollision(const Body& other) const {
    return other.category != category::player;
}

void CashPickup::give(Player& player) {
    player.addCash(amount);
    mass = invMass = 0;
    solid = false;
}

void CashPickup::pickupFeedback() {
    floatText("Cash");
}

}  // namespace bc
