// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/race/RaceBlock.h"

#include "gameplay/actors/Effects.h"
#include "gameplay/actors/Spawning.h"
#include "world/BodyFields.h"

namespace bc {

RaceBlock::RaceBlock() {
    showDamage = false;
}

void RaceBlock::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level()
        .box(16, 16)
        .with("entity", "true")
        .with("solid", "true")
        .with("mass", "50")
        .with("texture", "data/images/raceblock.png")
        .with("texmap", "fit");
    f.kept("startpos", startPos, pos);
    f.kept("counted", counted);
}

void RaceBlock::onSpawned() {
    GameBody::onSpawned();
    startPos = pos;
}

void RaceBlock::reset() {
    counted = false;
    appearEffect(pos);
    placeAt(*this, startPos);
    vel = Vector();
}

}  // namespace bc
