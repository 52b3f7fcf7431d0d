// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The controller's side of a race: its clock and what it tells the player.
#include "console/CommandRegistry.h"
#include "core/Text.h"
#include "gameplay/DefaultGameplay.h"
#include "gameplay/Effects.h"
#include "gameplay/GameplaySingleton.h"
#include "gameplay/RaceBodies.h"
#include "world/World.h"

#include <string>

namespace bc {

namespace {

constexpr const char* rule = "---------";

/// Calls action for every body of class T in the world.
template <class T, class Action>
void forEachBody(Action action) {
    World* world = GameplaySingleton::instance().world();
    if (world == nullptr)
        return;
    for (Body* body : world->allBodies())
        if (auto* found = dynamic_cast<T*>(body))
            action(*found);
}

void tell(const std::string& text) {
    showAnchoredMessage(text, anchorCentre);
    consolePrint(text);
}

std::string seconds(const BasicTimer& clock) {
    return formatFloat(clock.elapsedSeconds());
}

}  // namespace

void DefaultGameplay::raceStart() {
    raceActive_ = true;
    raceClock_.restart();
    forEachBody<RaceEndBlock>([](RaceEndBlock& goal) { goal.forgetCollected(); });
    forEachBody<RaceBlock>([](RaceBlock& block) { block.counted = false; });
    showAnchoredMessage("Race Started!!", anchorCentre);
    consolePrint(rule);
    consolePrint("Race Started");
}

void DefaultGameplay::raceCheckpoint() {
    if (raceActive_)
        tell("Checkpoint: " + seconds(raceClock_));
}

void DefaultGameplay::raceFinish() {
    if (raceActive_) {
        tell("Race Finished: " + seconds(raceClock_));
        consolePrint(rule);
    }
    raceActive_ = false;
    raceClock_.pause();
}

void DefaultGameplay::raceReset() {
    raceActive_ = false;
    showAnchoredMessage("Race reset.", anchorCentre);
    raceClock_.rate = 1000;
    raceClock_.running = false;
    forEachBody<RaceEndBlock>([](RaceEndBlock& goal) { goal.forgetCollected(); });
    forEachBody<RaceBlock>([](RaceBlock& block) { block.reset(); });
}

}  // namespace bc
