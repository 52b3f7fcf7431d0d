// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/race/RaceEnd.h"

#include "gameplay/actors/Race.h"
#include "gameplay/objects/race/RaceGate.h"
#include "world/BodyFields.h"

namespace bc {

RaceEnd::RaceEnd() {}

void RaceEnd::fields(BodyFields& f) {
    TriggerBody::fields(f);
    f.level()
        .with("untriggertimer", "2000")
        .with("texture", "data/images/checkers.png")
        .with("texsize", "32");
    f.param("startbody", startBody, "Name of the start of this race.").kind(ParamKind::id);
    f.param("targettime", targetTime, "Time to beat, seconds; -1 for none.");
}

void RaceEnd::onTouch(const TouchInfo& info) {
    if (!isReadyFor(info))
        return;
    if (isRaceActive())
        arm();
    if (Race* race = currentRace())
        race->finish();
}

}  // namespace bc
