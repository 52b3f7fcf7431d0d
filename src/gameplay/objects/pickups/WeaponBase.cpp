// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/WeaponBase.h"

#include "gameplay/actors/SoundIds.h"
#include "gameplay/player/Player.h"
#include "gameplay/weapons/WeaponTable.h"
#include "world/BodyFields.h"

namespace bc {

WeaponBase::WeaponBase(const std::string& typeName) : weaponType(typeName) {
    type = typeName;
    texture = "data/images/" + typeName + ".png";
    defaultWidth = 32;
}

void WeaponBase::fields(BodyFields& f) {
    RespawnableBody::fields(f);
    f.param("weapontype", weaponType, "Weapon that it gives.").choices("weapon", weaponNames());
    f.param("ammo", ammo, "Ammunition that comes with it.").inLevels("10");
}

std::unique_ptr<Body> WeaponBase::create() const {
    return std::make_unique<WeaponBase>(type);
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
