// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/Armour.h"

#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/player/Player.h"
#include "world/BodyFields.h"

namespace bc {

Armour::Armour() {
    texture = "data/images/armour.png";
    category = category::armour;
}

void Armour::fields(BodyFields& f) {
    RespawnableBody::fields(f);
    f.param("amount", amount, "Armour that it gives.").inLevels("50");
}

bool Armour::wanted(Player& player) const {
    return player.getArmour() < player.progress.maxArmour;
}

void Armour::give(Player& player) {
    player.addArmour(amount);
}

void Armour::pickupFeedback() {
    announce(sound::armourPickup, "Armour");
}

}  // namespace bc
