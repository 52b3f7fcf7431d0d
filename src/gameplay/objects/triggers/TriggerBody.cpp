// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/TriggerBody.h"

#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "world/BodyFields.h"
#include "world/TouchInfo.h"

namespace bc {

TriggerBody::TriggerBody() {
    thinks = true;
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

void TriggerBody::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level().with("entity", "true");
    f.param("triggeronce", triggerOnce, "Fires once, never again.");
    f.param("untriggertimer", untriggerTime, "Until it can fire again.");
    f.kept("triggered", triggered);
    f.kept("untriggertime", untriggerAt);
}

void TriggerBody::arm() {
    triggered = true;
    untriggerAt = untriggerTime + levelTime();
}

bool TriggerBody::isReadyFor(const TouchInfo& info) const {
    return !triggered && info.other->category == category::player;
}

void TriggerBody::onThink(float /*dt*/) {
    if (!triggered || triggerOnce || untriggerAt >= levelTime())
        return;
    triggered = false;
    onRearmed();
}

}  // namespace bc
