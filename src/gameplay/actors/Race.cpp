// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/Race.h"

#include "command/CommandRegistry.h"
#include "core/Text.h"
#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "world/World.h"

#include <string>

namespace bc {

namespace {

constexpr const char* rule = "---------";

void forEachMember(void (RaceMember::*action)()) {
    World* world = GameplaySingleton::instance().world();
    if (world == nullptr)
        return;
    for (Body* body : world->allBodies())
        if (auto* member = dynamic_cast<RaceMember*>(body))
            (member->*action)();
}

void tell(const std::string& text) {
    showAnchoredMessage(text, anchorCentre);
    consolePrint(text);
}

std::string seconds(const BasicTimer& clock) {
    return formatFloat(clock.elapsedSeconds());
}

}  // namespace

void Race::start() {
    active_ = true;
    clock_.restart();
    forEachMember(&RaceMember::onRaceStarted);
    showAnchoredMessage("Race Started!!", anchorCentre);
    consolePrint(rule);
    consolePrint("Race Started");
}

void Race::checkpoint() {
    if (active_)
        tell("Checkpoint: " + seconds(clock_));
}

void Race::finish() {
    if (active_) {
        tell("Race Finished: " + seconds(clock_));
        consolePrint(rule);
    }
    active_ = false;
    clock_.pause();
}

void Race::reset() {
    active_ = false;
    showAnchoredMessage("Race reset.", anchorCentre);
    clock_.rate = 1000;
    clock_.running = false;
    forEachMember(&RaceMember::onRaceReset);
}

void Race::tick() {
    if (active_)
        clock_.tick();
}

void Race::pause() {
    if (active_)
        clock_.pause();
}

void Race::resume() {
    if (active_)
        clock_.resume();
}

void Race::restore(bool active, const BasicTimer& clock) {
    active_ = active;
    clock_ = clock;
}

}  // namespace bc
