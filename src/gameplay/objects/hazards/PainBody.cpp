// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/hazards/PainBody.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "resources/XmlAttributes.h"
#include "world/TouchInfo.h"

#include <tinyxml.h>

#include <cmath>

namespace bc {

namespace {

/// Milliseconds in which the picture drifts by its own height.
constexpr float driftTime = 3000;

}  // namespace

PainBody::PainBody() {
    type = "painbody";
    thinks = true;
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

std::unique_ptr<Body> PainBody::create() const {
    return std::make_unique<PainBody>();
}

void PainBody::applyAttributes(const std::map<std::string, std::string>& attributes) {
    GameBody::applyAttributes(attributes);
    const Attributes given(attributes);
    given.read("on", on);
    given.read("pain", pain);
    given.read("reverttimer", revertTimer);
}

void PainBody::onTouch(const TouchInfo& info) {
    auto* body = dynamic_cast<GameBody*>(info.other);
    if (!on || body == nullptr || body->nextPainTime >= levelTime())
        return;
    body->takeDamage(pain, damage::environment);
    body->nextPainTime = levelTime() + painInterval;
}

void PainBody::onTriggered(GameBody* /*activator*/) {
    if (triggered)
        return;
    triggered = true;
    on = !on;
    revertAt = revertTimer + levelTime();
}

void PainBody::onThink(float /*dt*/) {
    if (!triggered || revertTimer <= 0 || revertAt >= levelTime())
        return;
    triggered = false;
    on = !on;
}

void PainBody::textureTransform(TextureTransform& transform) {
    // v grows upwards, so that the look-up has to go down.
    transform.offsetY = -std::fmod(levelTime(), driftTime) / driftTime;
}

void PainBody::loadState(const TiXmlElement& e) {
    GameBody::loadState(e);
    triggered = xml::readBool(e, "wastriggered");
    revertAt = xml::readFloat(e, "reverttime");
    if (xml::has(e, "on"))
        on = xml::readBool(e, "on");
}

void PainBody::saveState(TiXmlElement& e) const {
    GameBody::saveState(e);
    xml::writeBool(e, "wastriggered", triggered);
    xml::writeFloat(e, "reverttime", revertAt);
    xml::writeBool(e, "on", on);
}

void PainBody::dumpState(TiXmlElement& debug) const {
    GameBody::dumpState(debug);
    xml::writeBool(debug, "on", on);
    xml::writeBool(debug, "triggered", triggered);
    xml::writeFloat(debug, "reverttime", revertAt);
}

}  // namespace bc
