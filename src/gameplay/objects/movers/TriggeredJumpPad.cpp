// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/movers/TriggeredJumpPad.h"

#include "gameplay/actors/GameplaySingleton.h"
#include "world/BodyFields.h"

namespace bc {

TriggeredJumpPad::TriggeredJumpPad() {
    thinks = true;
}

void TriggeredJumpPad::fields(BodyFields& f) {
    JumpPad::fields(f);
    f.level().with("entity", "true");
    f.param("triggeronce", triggerOnce, "Fires once, never again.").rank(-1);
    f.param("untriggertimer", untriggerTime, "Until it can fire again.").rank(-1);
    f.param("starton", startOn, "On at first.").inLevels("true");
    f.kept("ison", isOn);
    f.kept("triggered", triggered);
    f.kept("untriggertime", untriggerAt);
}

void TriggeredJumpPad::onSpawned() {
    JumpPad::onSpawned();
    isOn = startOn;
}

void TriggeredJumpPad::onTouch(const TouchInfo& info) {
    if (isOn)
        JumpPad::onTouch(info);
}

void TriggeredJumpPad::onTriggered(GameBody* /*activator*/) {
    if (triggered)
        return;
    triggered = true;
    isOn = !isOn;
    untriggerAt = untriggerTime + levelTime();
}

void TriggeredJumpPad::onThink(float /*dt*/) {
    if (!triggered || triggerOnce || untriggerAt >= levelTime())
        return;
    triggered = false;
    isOn = !isOn;
}

}  // namespace bc
