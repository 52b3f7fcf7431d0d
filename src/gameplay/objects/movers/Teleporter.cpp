// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/movers/Teleporter.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/actors/Spawning.h"
#include "particles/ParticleManager.h"
#include "world/TouchInfo.h"

namespace bc {

Teleporter::Teleporter() {
    type = "teleporter";
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

std::unique_ptr<Body> Teleporter::create() const {
    return std::make_unique<Teleporter>();
}

void Teleporter::applyAttributes(const std::map<std::string, std::string>& attributes) {
    GameBody::applyAttributes(attributes);
    const Attributes given(attributes);
    given.read("changevelocity", changeVelocity);
    given.read("exitvelocity", exitVelocity);
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

TeleporterVisual::TeleporterVisual() {
    type = "teleportervisual";
    visible = false;
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

std::unique_ptr<Body> TeleporterVisual::create() const {
    return std::make_unique<TeleporterVisual>();
}

void TeleporterVisual::onLoaded() {
    GameBody::onLoaded();
    startParticles("teleporter", pos);
}

}  // namespace bc
