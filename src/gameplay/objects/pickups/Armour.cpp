// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/Armour.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/player/Player.h"

namespace bc {

Armour::Armour() {
    type = "armour";
    texture = "data/images/armour.png";
    category = category::armour;
}

std::unique_ptr<Body> Armour::create() const {
    return std::make_unique<Armour>();
}

void Armour::applyAttributes(const std::map<std::string, std::string>& attributes) {
    RespawnableBody::applyAttributes(attributes);
    Attributes(attributes).read("amount", amount);
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

QuickArmour::QuickArmour() {
    type = "quickarmour";
    texture = "data/images/quickarmour.png";
}

std::unique_ptr<Body> QuickArmour::create() const {
    return std::make_unique<QuickArmour>();
}

void QuickArmour::pickupFeedback() {
    announce(sound::armourPickup, "Quick Armour");
}

}  // namespace bc
