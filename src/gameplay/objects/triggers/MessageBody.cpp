// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/MessageBody.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/Effects.h"
#include "world/TouchInfo.h"

namespace bc {

MessageBody::MessageBody() {
    type = "messagebody";
}

std::unique_ptr<Body> MessageBody::create() const {
    return std::make_unique<MessageBody>();
}

void MessageBody::applyAttributes(const std::map<std::string, std::string>& attributes) {
    TriggerBody::applyAttributes(attributes);
    Attributes(attributes).read("message", message);
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

MessengerBody::MessengerBody() {
    type = "messengerbody";
}

std::unique_ptr<Body> MessengerBody::create() const {
    return std::make_unique<MessengerBody>();
}

void MessengerBody::onTriggered(GameBody* /*activator*/) {
    if (triggered)
        return;
    arm();
    showAnchoredMessage(message, anchorCentre);
}

}  // namespace bc
