// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/Trigger.h"

#include "world/BodyFields.h"
#include "world/TouchInfo.h"

namespace bc {

Trigger::Trigger() {}

void Trigger::fields(BodyFields& f) {
    TriggerBody::fields(f);
    f.level().with("visible", "false");
}

void Trigger::onTouch(const TouchInfo& info) {
    if (!isReadyFor(info))
        return;
    arm();
    fireTargets();
}

}  // namespace bc
