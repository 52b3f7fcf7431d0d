// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/player/PlayerControl.h"

#include "command/GameVar.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/player/CraftMovement.h"
#include "gameplay/player/Player.h"
#include "gameplay/player/PlayerIntent.h"
#include "gameplay/weapons/WeaponTable.h"

namespace bc {

namespace {

/// The value of movemode with which the craft runs and jumps.
constexpr int platformMode = 2;

}  // namespace

void PlayerControl::init() {
    moveMode_ = vars().getVar("movemode");
}

void PlayerControl::applyMovement(Player& player, const PlayerIntent& intent, float step) {
    if (player.dead)
        return;
    const bool platform = moveMode_ != nullptr && moveMode_->intValue() == platformMode;
    moveCraft(player, intent, platform, step);
}

void PlayerControl::applyFiring(Player& player, const PlayerIntent& intent) {
    player.aim = intent.aim;
    player.mouseWorldPos = intent.aimAt;
    if (player.dead)
        return;
    fireGrapple(player, intent);
    fireWeapons(player, intent);
    if (intent.nextWeapon)
        player.inventory.selectNext();
    if (intent.previousWeapon)
        player.inventory.selectPrevious();
}

void PlayerControl::fireGrapple(Player& player, const PlayerIntent& intent) {
    if (intent.grapple) {
        grappleHeld_ = true;
        player.inventory.fire(&player, player.renderpos, player.aim, levelTime(), weapon::grapple);
    } else if (grappleHeld_) {
        grappleHeld_ = false;
        player.releaseGrapple();
    }
}

void PlayerControl::fireWeapons(Player& player, const PlayerIntent& intent) {
    const float now = levelTime();
    if (intent.attack) {
        player.isfiring = true;
        player.fireActiveWeapon();
    } else if (intent.fireById) {
        player.isfiring = true;
        player.inventory.fire(&player, player.renderpos, player.aim, now, intent.weaponId);
    } else {
        player.isfiring = false;
        // The hook stays out while its own key is held.
        if (!intent.grapple || player.inventory.activeWeapon() != weapon::grapple)
            player.stopActiveWeapon();
        if (!intent.grapple || intent.weaponId != weapon::grapple)
            player.inventory.unfire(intent.weaponId, now);
    }
}

}  // namespace bc
