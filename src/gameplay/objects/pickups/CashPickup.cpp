// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/CashPickup.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/player/Player.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

namespace bc {

CashPickup::CashPickup() {
    type = "cashpickup";
    texture = "data/images/cash.png";
    glowTexture = texture;
    hasGlow = true;
    glowSteps = 2;
    canRespawn = false;
}

std::unique_ptr<Body> CashPickup::create() const {
    return std::make_unique<CashPickup>();
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

void CashPickup::applyAttributes(const std::map<std::string, std::string>& attributes) {
    RespawnableBody::applyAttributes(attributes);
    Attributes(attributes).read("amount", amount);
}

void CashPickup::loadState(const TiXmlElement& e) {
    RespawnableBody::loadState(e);
    if (xml::has(e, "amount"))
        amount = xml::readInt(e, "amount");
}

void CashPickup::saveState(TiXmlElement& e) const {
    RespawnableBody::saveState(e);
    // What an enemy dropped stands in no level.
    xml::writeInt(e, "amount", amount);
}

}  // namespace bc
