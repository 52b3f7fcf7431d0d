// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/AmmoBase.h"

#include "gameplay/actors/SoundIds.h"
#include "gameplay/player/Player.h"
#include "gameplay/weapons/WeaponTable.h"
#include "world/BodyFields.h"

#include <algorithm>

namespace bc {

AmmoBase::AmmoBase(const std::string& typeName) : ammoType(typeName) {
    type = typeName;
    texture = "data/images/" + typeName + ".png";
}

void AmmoBase::fields(BodyFields& f) {
    RespawnableBody::fields(f);
    f.param("ammotype", ammoType, "Ammunition that it gives.").choices("ammo", ammoNames());
    f.param("ammo", ammo, "How much.");
}

std::unique_ptr<Body> AmmoBase::create() const {
    return std::make_unique<AmmoBase>(type);
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
