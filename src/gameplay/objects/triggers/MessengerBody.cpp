// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/MessengerBody.h"

#include "gameplay/actors/Effects.h"
#include "world/BodyFields.h"

namespace bc {

MessengerBody::MessengerBody() {}

void MessengerBody::fields(BodyFields& f) {
    MessageBody::fields(f);
    f.level().box(16, 16);
}

void MessengerBody::onTriggered(GameBody* /*activator*/) {
    if (triggered)
        return;
    arm();
    showAnchoredMessage(message, anchorCentre);
}

}  // namespace bc
