// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/movers/Teleporter.h"

#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/actors/Spawning.h"
#include "particles/ParticleManager.h"
#include "world/BodyFields.h"
#include "world/TouchInfo.h"

namespace bc {

Teleporter::Teleporter() {
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

void Teleporter::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level().box(32, 32).with("texture", "data/images/teleporter.png").with("texmap", "fit");
    f.param("changevelocity", changeVelocity, "Sets the velocity as well.");
    f.param("exitvelocity", exitVelocity, "That velocity, y upwards.");
}

void Teleporter::onTouch(const TouchInfo& info) {
    if (targetBodies.empty())
        return;
    Body& traveller = *info.other;
    const Vector exit = targetBodies.front()->pos;
    startParticles("itemrespawn2", traveller.pos);
    startParticles("itemrespawn2", exit);
    placeAt(traveller, exit);
    if (changeVelocity)
        traveller.vel = exitVelocity;
    playSoundAt(sound::teleport, pos);
    playSoundAt(sound::teleport, exit);
}

}  // namespace bc
