// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/race/RaceReset.h"

#include "gameplay/actors/Race.h"
#include "gameplay/objects/race/RaceGate.h"
#include "world/BodyFields.h"

namespace bc {

RaceReset::RaceReset() {}

void RaceReset::fields(BodyFields& f) {
    TriggerBody::fields(f);
    f.level()
        .with("texture", "data/images/checkersred.png")
        .with("texsize", "32")
        .with("untriggertimer", "1000");
}

void RaceReset::onTouch(const TouchInfo& info) {
    if (!isReadyFor(info))
        return;
    arm();
    if (Race* race = currentRace())
        race->reset();
}

}  // namespace bc
