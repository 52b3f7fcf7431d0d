// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/MessageBody.h"

#include "gameplay/actors/Effects.h"
#include "world/BodyFields.h"
#include "world/TouchInfo.h"

namespace bc {

MessageBody::MessageBody() {}

void MessageBody::fields(BodyFields& f) {
    TriggerBody::fields(f);
    f.level().with("visible", "false");
    f.param("message", message, "What it says.").required();
}

void MessageBody::onTouch(const TouchInfo& info) {
    if (!isReadyFor(info))
        return;
    arm();
    showAnchoredMessage(message, anchorCentre);
    fireTargets();
}

void MessageBody::onTriggered(GameBody* /*activator*/) {
    arm();
}

}  // namespace bc
