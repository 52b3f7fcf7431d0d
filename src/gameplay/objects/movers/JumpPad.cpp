// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/movers/JumpPad.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/SoundIds.h"
#include "resources/XmlAttributes.h"
#include "world/TouchInfo.h"

#include <tinyxml.h>

namespace bc {

JumpPad::JumpPad() {
    type = "jumppad";
    showDamage = false;
}

std::unique_ptr<Body> JumpPad::create() const {
    return std::make_unique<JumpPad>();
}

void JumpPad::applyAttributes(const std::map<std::string, std::string>& attributes) {
    GameBody::applyAttributes(attributes);
    const Attributes given(attributes);
    given.read("speed", speed);
    given.read("additive", additive);
}

void JumpPad::onTouch(const TouchInfo& info) {
    Body& thrown = *info.other;
    // addVelocity keeps to the speed limit; static bodies are not thrown.
    if (!thrown.isMassive())
        return;
    if (!additive)
        thrown.vel = Vector();
    thrown.addVelocity(speed);
    playSoundAt(sound::jumpPad, pos);
}

TriggeredJumpPad::TriggeredJumpPad() {
    type = "triggeredjumppad";
    thinks = true;
}

std::unique_ptr<Body> TriggeredJumpPad::create() const {
    return std::make_unique<TriggeredJumpPad>();
}

void TriggeredJumpPad::applyAttributes(const std::map<std::string, std::string>& attributes) {
    JumpPad::applyAttributes(attributes);
    const Attributes given(attributes);
    given.read("starton", startOn);
    given.read("triggeronce", triggerOnce);
    given.read("untriggertimer", untriggerTime);
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

void TriggeredJumpPad::loadState(const TiXmlElement& e) {
    JumpPad::loadState(e);
    isOn = xml::readBool(e, "ison");
    triggered = xml::readBool(e, "triggered");
    untriggerAt = xml::readFloat(e, "untriggertime");
}

void TriggeredJumpPad::saveState(TiXmlElement& e) const {
    JumpPad::saveState(e);
    xml::writeBool(e, "ison", isOn);
    xml::writeBool(e, "triggered", triggered);
    xml::writeFloat(e, "untriggertime", untriggerAt);
}

void TriggeredJumpPad::dumpState(TiXmlElement& debug) const {
    JumpPad::dumpState(debug);
    xml::writeBool(debug, "ison", isOn);
    xml::writeBool(debug, "triggered", triggered);
    xml::writeFloat(debug, "untriggertime", untriggerAt);
}

}  // namespace bc
