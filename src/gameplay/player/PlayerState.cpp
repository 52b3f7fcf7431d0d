// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// What files know of the player.
#include "gameplay/player/Player.h"
#include "gameplay/weapons/GrappleProjectile.h"
#include "world/BodyFields.h"

namespace bc {

void Player::fields(BodyFields& f) {
    GameBody::fields(f);
    f.savedPart(inventory);
    f.savedPart(progress);
    f.kept("airtime", airTime);
    f.kept("canjump", canJump, true);
    f.saved("standsonearlier", standsOnEarlier);
    f.saved("boostleft", boostLeft);
    f.saved("boostrecharge", boostRecharge);

    f.shown("dead", dead);
    f.shown("respawntime", respawnTime);
    f.shown("revivepending", revivePending);
    f.shown("grappling", grappling);
    f.shown("grapplehook", grappleHook != nullptr ? grappleHook->autoid : 0);
    f.shown("holding", grappleHook != nullptr && grappleHook->holding);
    f.shown("boostleft", boostLeft);
    f.shown("boostrecharge", boostRecharge);
    f.shown("aim", aim);
    f.shown("mouseworld", mouseWorldPos);
    f.shownPart(progress);
    f.shownPart(inventory);
}

void Player::onStateRead() {
    // Saved between death and the loading of the last save.
    if (dying)
        revivePending = true;
}

}  // namespace bc
