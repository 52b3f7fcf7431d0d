// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/movers/Door.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Spawning.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

namespace bc {

namespace {

// World units.
constexpr float arrived = 0.000001F;

/// Moves a coordinate back to the end of its way when it has passed it.
void hold(float& place, float end, bool upwards) {
    if (upwards ? place > end : place < end)
        place = end;
}

}  // namespace

Door::Door() {
    type = "door";
    thinks = true;
    thinkInterval = 100;
    gravitymultiplier = 0;
    bounce = 0;
    nonmassmover = true;
    showDamage = false;
}

std::unique_ptr<Body> Door::create() const {
    return std::make_unique<Door>();
}

void Door::onSpawned() {
    GameBody::onSpawned();
    // A restored door knows where it started; a placed one starts where it is.
    if (!isOpening)
        startPoint = pos;
}

void Door::setOffTowards(const Vector& direction) {
    vel = normalised(direction) * speed;
    xDirection = vel.x > 0;
    yDirection = vel.y > 0;
}

void Door::onTriggered(GameBody* /*activator*/) {
    if (isOpening || isOpen)
        return;
    isOpening = true;
    targetPos = startPoint + offset;
    setOffTowards(offset);
}

bool Door::holdAt(const Vector& place) {
    Vector held = pos;
    hold(held.x, place.x, xDirection);
    hold(held.y, place.y, yDirection);
    if (!held.equals(pos))
        placeAt(*this, held);
    if (planarDistance(pos, place) >= arrived)
        return false;
    vel = Vector();
    return true;
}

void Door::onThink(float /*dt*/) {
    if (isOpen && closeTime < levelTime() && !isClosing && timeOpen > 0) {
        isClosing = true;
        setOffTowards(startPoint - pos);
    }
    if (isOpening && holdAt(targetPos)) {
        closeTime = timeOpen + levelTime();
        isOpen = true;
        isOpening = false;
    }
    if (isClosing && holdAt(startPoint))
        isOpen = isOpening = isClosing = false;
}

void Door::update(float dt) {
    GameBody::update(dt);
    // Between two thoughts a fast door would slide visibly past the end of its way.
    if (isOpening)
        holdAt(targetPos);
    else if (isClosing)
        holdAt(startPoint);
}

bool Door::acceptsCollision(const Body& other) const {
    return other.category != category::clip;
}

void Door::applyAttributes(const std::map<std::string, std::string>& attributes) {
    GameBody::applyAttributes(attributes);
    const Attributes given(attributes);
    given.read("openoffset", offset);
    given.read("timeopen", timeOpen);
    given.read("speed", speed);
}

void Door::loadState(const TiXmlElement& e) {
    GameBody::loadState(e);
    xml::readValue(e, "startpoint", startPoint);
    xml::readValue(e, "targetpos", targetPos);
    closeTime = xml::readFloat(e, "closetime");
    if (xml::has(e, "speed"))
        speed = xml::readFloat(e, "speed");
    isOpen = xml::readBool(e, "isopen");
    isOpening = xml::readBool(e, "isopening");
    isClosing = xml::readBool(e, "isclosing");
    xDirection = xml::readBool(e, "xdirection");
    yDirection = xml::readBool(e, "ydirection");
}

void Door::saveState(TiXmlElement& e) const {
    GameBody::saveState(e);
    xml::writeValue(e, "startpoint", startPoint);
    xml::writeValue(e, "targetpos", targetPos);
    xml::writeFloat(e, "closetime", closeTime);
    xml::writeFloat(e, "speed", speed);
    xml::writeBool(e, "isopen", isOpen);
    xml::writeBool(e, "isopening", isOpening);
    xml::writeBool(e, "isclosing", isClosing);
    xml::writeBool(e, "xdirection", xDirection);
    xml::writeBool(e, "ydirection", yDirection);
}

void Door::dumpState(TiXmlElement& debug) const {
    GameBody::dumpState(debug);
    xml::writeBool(debug, "isopen", isOpen);
    xml::writeBool(debug, "isopening", isOpening);
    xml::writeBool(debug, "isclosing", isClosing);
    xml::writeFloat(debug, "closetime", closeTime);
}

}  // namespace bc
