// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/WeaponBase.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/player/Player.h"
#include "gameplay/weapons/WeaponTable.h"

namespace bc {

WeaponBase::WeaponBase(const std::string& typeName) : weaponType(typeName) {
    type = typeName;
    texture = "data/images/" + typeName + ".png";
    defaultWidth = 32;
}

std::unique_ptr<Body> WeaponBase::create() const {
    return std::make_unique<WeaponBase>(type);
}

void WeaponBase::applyAttributes(const std::map<std::string, std::string>& attributes) {
    RespawnableBody::applyAttributes(attributes);
    const Attributes given(attributes);
    given.read("ammo", ammo);
    given.read("weapontype", weaponType);
}

void WeaponBase::onLoaded() {
    RespawnableBody::onLoaded();
    displayName_ = weaponDisplayName(weaponIdOf(weaponType));
}

void WeaponBase::give(Player& player) {
    const int weaponId = weaponIdOf(weaponType);
    if (weaponId < 0)
        return;
    player.inventory.giveWeapon(weaponId);
    player.inventory.addAmmo(weaponTable()[static_cast<std::size_t>(weaponId - 1)].ammoId, ammo);
}

void WeaponBase::pickupFeedback() {
    announce(sound::weaponPickup, displayName_);
}

}  // namespace bc
