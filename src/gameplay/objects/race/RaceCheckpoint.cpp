// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/race/RaceCheckpoint.h"

#include "gameplay/actors/Race.h"
#include "gameplay/objects/race/RaceGate.h"
#include "world/BodyFields.h"

namespace bc {

RaceCheckpoint::RaceCheckpoint() {}

void RaceCheckpoint::fields(BodyFields& f) {
    TriggerBody::fields(f);
    f.level()
        .with("texture", "data/images/racegate.png")
        .with("texmap", "fit")
        .with("untriggertimer", "1000");
}

void RaceCheckpoint::onTouch(const TouchInfo& info) {
    if (!isReadyFor(info))
        return;
    arm();
    if (Race* race = currentRace())
        race->checkpoint();
}

}  // namespace bc
