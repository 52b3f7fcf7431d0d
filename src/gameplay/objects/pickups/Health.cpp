// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/Health.h"

#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/player/Player.h"
#include "world/BodyFields.h"

namespace bc {

Health::Health() {
    texture = "data/images/health.png";
    category = category::health;
}

void Health::fields(BodyFields& f) {
    RespawnableBody::fields(f);
    f.param("amount", amount, "Health that it gives.").onlyIf(hasAmount());
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

}  // namespace bc
