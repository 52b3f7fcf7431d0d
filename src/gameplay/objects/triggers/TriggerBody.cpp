// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/TriggerBody.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "resources/XmlAttributes.h"
#include "world/TouchInfo.h"

#include <tinyxml.h>

namespace bc {

TriggerBody::TriggerBody() {
    thinks = true;
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
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

void TriggerBody::applyAttributes(const std::map<std::string, std::string>& attributes) {
    GameBody::applyAttributes(attributes);
    const Attributes given(attributes);
    given.read("triggeronce", triggerOnce);
    given.read("untriggertimer", untriggerTime);
}

void TriggerBody::loadState(const TiXmlElement& e) {
    GameBody::loadState(e);
    triggered = xml::readBool(e, "triggered");
    untriggerAt = xml::readFloat(e, "untriggertime");
}

void TriggerBody::saveState(TiXmlElement& e) const {
    GameBody::saveState(e);
    xml::writeBool(e, "triggered", triggered);
    xml::writeFloat(e, "untriggertime", untriggerAt);
}

void TriggerBody::dumpState(TiXmlElement& debug) const {
    GameBody::dumpState(debug);
    xml::writeBool(debug, "triggered", triggered);
    xml::writeFloat(debug, "untriggertime", untriggerAt);
}

}  // namespace bc
