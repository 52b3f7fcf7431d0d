// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/QuickArmour.h"

#include "gameplay/actors/SoundIds.h"
#include "world/BodyFields.h"

namespace bc {

QuickArmour::QuickArmour() {
    texture = "data/images/quickarmour.png";
}

void QuickArmour::fields(BodyFields& f) {
    Armour::fields(f);
    f.level().with("amount", "20");
}

void QuickArmour::pickupFeedback() {
    announce(sound::armourPickup, "Quick Armour");
}

}  // namespace bc
