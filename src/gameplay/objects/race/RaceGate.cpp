// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/race/RaceGate.h"

#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Race.h"
#include "gameplay/actors/Rules.h"
#include "world/Body.h"

namespace bc {

namespace {

constexpr const char* restingTexture = "data/images/checkersred.png";

}  // namespace

Race* currentRace() {
    Rules* rules = GameplaySingleton::instance().rules;
    return rules != nullptr ? &rules->race() : nullptr;
}

bool isRaceActive() {
    const Race* race = currentRace();
    return race != nullptr && race->isActive();
}

void showGateState(Body& gate, bool resting) {
    const char* wanted = resting ? restingTexture : readyGateTexture;
    if (gate.texture != wanted)
        gate.setTexture(wanted);
}

}  // namespace bc
