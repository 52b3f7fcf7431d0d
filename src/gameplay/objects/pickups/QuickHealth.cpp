// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/QuickHealth.h"

#include "gameplay/actors/SoundIds.h"

namespace bc {

QuickHealth::QuickHealth() {
    texture = "data/images/quickhealth.png";
    respawnDelay = 10000;
    amount = 20;
}

void QuickHealth::pickupFeedback() {
    announce(sound::healthPickup, "Quick Health");
}

}  // namespace bc
