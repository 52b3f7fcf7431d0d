// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/movers/AlphaDoor.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

namespace bc {

AlphaDoor::AlphaDoor() {
    type = "alphadoor";
    thinks = true;
    thinkInterval = 100;
    showDamage = false;
}

std::unique_ptr<Body> AlphaDoor::create() const {
    return std::make_unique<AlphaDoor>();
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

void AlphaDoor::applyAttributes(const std::map<std::string, std::string>& attributes) {
    GameBody::applyAttributes(attributes);
    const Attributes given(attributes);
    given.read("timeopen", timeOpen);
    given.read("startopen", startOpen);
    given.read("triggeronce", triggerOnce);
}

void AlphaDoor::loadState(const TiXmlElement& e) {
    GameBody::loadState(e);
    triggered = xml::readBool(e, "triggered");
    isOpen = xml::readBool(e, "isopen");
    if (xml::has(e, "timeopen"))
        timeOpen = xml::readFloat(e, "timeopen");
    closeAt = xml::readFloat(e, "reverttime");
}

void AlphaDoor::saveState(TiXmlElement& e) const {
    GameBody::saveState(e);
    xml::writeBool(e, "triggered", triggered);
    xml::writeBool(e, "isopen", isOpen);
    xml::writeFloat(e, "timeopen", timeOpen);
    xml::writeFloat(e, "reverttime", closeAt);
}

void AlphaDoor::dumpState(TiXmlElement& debug) const {
    GameBody::dumpState(debug);
    xml::writeBool(debug, "isopen", isOpen);
    xml::writeBool(debug, "triggered", triggered);
    xml::writeFloat(debug, "closeat", closeAt);
}

}  // namespace bc
