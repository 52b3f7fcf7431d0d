// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/movers/AlphaDoor.h"

#include "gameplay/actors/GameplaySingleton.h"
#include "world/BodyFields.h"

namespace bc {

AlphaDoor::AlphaDoor() {
    thinks = true;
    thinkInterval = 100;
    showDamage = false;
}

void AlphaDoor::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level()
        .with("solid", "true")
        .with("entity", "true")
        .with("texture", "data/images/alphadoor.png")
        .with("texmap", "fit");
    f.param("timeopen", timeOpen, "Until it turns back.").inLevels("3000");
    f.param("startopen", startOpen, "Open at first.");
    f.param("triggeronce", triggerOnce, "Stays as it is after the first time.");
    f.shown("isopen", isOpen);
    f.kept("triggered", triggered);
    f.saved("isopen", isOpen);
    f.saved("timeopen", timeOpen, timeOpen);
    f.saved("reverttime", closeAt);
    f.shown("closeat", closeAt);
}

void AlphaDoor::apply() {
    visible = !isOpen;
    solid = !isOpen;
}

void AlphaDoor::toggle() {
    isOpen = !isOpen;
    apply();
}

void AlphaDoor::onSpawned() {
    GameBody::onSpawned();
    isOpen = startOpen;
    apply();
}

void AlphaDoor::onRestored() {
    GameBody::onRestored();
    apply();
}

void AlphaDoor::onTriggered(GameBody* /*activator*/) {
    closeAt = timeOpen + levelTime();
    if (triggered)
        return;
    triggered = true;
    toggle();
}

void AlphaDoor::onThink(float /*dt*/) {
    if (!triggered || triggerOnce || closeAt >= levelTime())
        return;
    triggered = false;
    toggle();
}

}  // namespace bc
