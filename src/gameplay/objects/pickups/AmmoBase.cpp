// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/AmmoBase.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/player/Player.h"
#include "gameplay/weapons/WeaponTable.h"

#include <algorithm>

namespace bc {

AmmoBase::AmmoBase(const std::string& typeName) : ammoType(typeName) {
    type = typeName;
    texture = "data/images/" + typeName + ".png";
}

std::unique_ptr<Body> AmmoBase::create() const {
    return std::make_unique<AmmoBase>(type);
}

void AmmoBase::applyAttributes(const std::map<std::string, std::string>& attributes) {
    RespawnableBody::applyAttributes(attributes);
    const Attributes given(attributes);
    given.read("ammo", ammo);
    given.read("ammotype", ammoType);
}

bool AmmoBase::wanted(Player& player) const {
    // Unknown kinds have no maximum and so are never wanted; infinite ones always are.
    const int kind = ammoIdOf(ammoType);
    return kind >= 0 && player.inventory.ammo(kind) < std::max(player.inventory.maxAmmo(kind), 0);
}

void AmmoBase::give(Player& player) {
    player.inventory.addAmmo(ammoIdOf(ammoType), ammo);
}

void AmmoBase::pickupFeedback() {
    announce(sound::ammoPickup, ammoDisplayName(ammoIdOf(ammoType)));
}

}  // namespace bc
