// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/movers/JumpPad.h"

#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/SoundIds.h"
#include "world/BodyFields.h"
#include "world/TouchInfo.h"

namespace bc {

JumpPad::JumpPad() {
    showDamage = false;
}

void JumpPad::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level().box(32, 16).with("texture", "data/images/jumppad.png").with("texmap", "fit");
    f.param("speed", speed, "Velocity that it gives, y upwards.").inLevels("0,400,0");
    f.param("additive", additive, "Adds to the velocity instead of replacing it.");
}

void JumpPad::onTouch(const TouchInfo& info) {
    Body& thrown = *info.other;
    // addVelocity keeps to the speed limit; static bodies are not thrown.
    if (!thrown.isMassive())
        return;
    if (!additive)
        thrown.vel = Vector();
    thrown.addVelocity(speed);
    playSoundAt(sound::jumpPad, pos);
}

}  // namespace bc
