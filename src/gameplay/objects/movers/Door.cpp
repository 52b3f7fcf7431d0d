// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/movers/Door.h"

#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Spawning.h"
#include "world/BodyFields.h"

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
    thinks = true;
    thinkInterval = 100;
    gravitymultiplier = 0;
    bounce = 0;
    nonmassmover = true;
    showDamage = false;
}

void Door::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level()
        .with("solid", "true")
        .with("entity", "true")
        .with("texture", "data/images/door.png")
        .with("texmap", "fit");
    f.param("openoffset", offset, "Way from closed to open, y upwards.").required();
    f.param("timeopen", timeOpen, "Until it closes again; 0 stays open.").inLevels("3000");
    f.param("speed", speed, "Units a second.").inLevels("120");
    f.saved("startpoint", startPoint);
    f.saved("targetpos", targetPos);
    f.saved("closetime", closeTime);
    f.saved("speed", speed, speed);
    f.kept("isopen", isOpen);
    f.kept("isopening", isOpening);
    f.kept("isclosing", isClosing);
    f.saved("xdirection", xDirection);
    f.saved("ydirection", yDirection);
    f.shown("closetime", closeTime);
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

}  // namespace bc
