// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/race/RaceStart.h"

#include "gameplay/actors/Race.h"
#include "gameplay/objects/race/RaceGate.h"
#include "world/BodyFields.h"

namespace bc {

RaceStart::RaceStart() {
    texture = readyGateTexture;
}

void RaceStart::fields(BodyFields& f) {
    TriggerBody::fields(f);
    f.level()
        .with("untriggertimer", "2000")
        .with("texture", "data/images/checkers.png")
        .with("texsize", "32");
    f.param("endbody", endBody, "Name of the end of this race.").kind(ParamKind::id);
}

void RaceStart::onTouch(const TouchInfo& info) {
    if (!isReadyFor(info))
        return;
    arm();
    if (Race* race = currentRace())
        race->start();
}

void RaceStart::onThink(float dt) {
    TriggerBody::onThink(dt);
    showGateState(*this, triggered);
}

}  // namespace bc
