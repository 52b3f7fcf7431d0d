// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/scenery/ParticleSystemBody.h"

#include "core/Text.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "particles/ParticleManager.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

namespace bc {

namespace {

/// Seconds within which a stopped effect is gone at the latest.
constexpr float fadeSeconds = 10;

}  // namespace

ParticleSystemBody::ParticleSystemBody() {
    type = "particlesystembody";
    thinks = true;
    thinkInterval = 0;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

ParticleSystemBody::~ParticleSystemBody() {
    stop(0);
}

std::unique_ptr<Body> ParticleSystemBody::create() const {
    return std::make_unique<ParticleSystemBody>();
}

void ParticleSystemBody::applyAttributes(const std::map<std::string, std::string>& attributes) {
    GameBody::applyAttributes(attributes);
    for (const auto& [name, value] : attributes) {
        if (equalsNoCase(name, "on"))
            on = parseBool(value);
        else if (equalsNoCase(name, "reverttimer"))
            revertTimer = parseFloat(value);
        else if (equalsNoCase(name, "systemid"))
            systemId = value;
    }
}

void ParticleSystemBody::onLoaded() {
    GameBody::onLoaded();
    if (on)
        start();
}

void ParticleSystemBody::start() {
    const ParticleSystem* system = startParticles(systemId, pos);
    runningSystem_ = system != nullptr ? system->id() : none;
}

void ParticleSystemBody::stop(float seconds) {
    if (ParticleSystem* system = particleManager().find(runningSystem_))
        system->stop(seconds);
    runningSystem_ = none;
}

void ParticleSystemBody::flip() {
    on = !on;
    if (on)
        start();
    else
        stop(fadeSeconds);
}

void ParticleSystemBody::onTriggered(GameBody* /*activator*/) {
    // Without a revert time there is nothing to wait for: each trigger switches it over.
    if (triggered && revertTimer > 0)
        return;
    triggered = true;
    revertAt = levelTime() + revertTimer * 1000;
    flip();
}

void ParticleSystemBody::onThink(float /*dt*/) {
    if (!triggered || revertTimer <= 0 || revertAt >= levelTime())
        return;
    triggered = false;
    flip();
}

void ParticleSystemBody::loadState(const TiXmlElement& e) {
    GameBody::loadState(e);
    triggered = xml::readBool(e, "wastriggered");
    revertAt = xml::readFloat(e, "reverttime");
    if (xml::has(e, "on"))
        on = xml::readBool(e, "on");
}

void ParticleSystemBody::saveState(TiXmlElement& e) const {
    GameBody::saveState(e);
    xml::writeBool(e, "wastriggered", triggered);
    xml::writeFloat(e, "reverttime", revertAt);
    xml::writeBool(e, "on", on);
}

void ParticleSystemBody::dumpState(TiXmlElement& debug) const {
    GameBody::dumpState(debug);
    xml::writeBool(debug, "on", on);
    xml::writeBool(debug, "triggered", triggered);
    xml::writeFloat(debug, "reverttime", revertAt);
    xml::writeBool(debug, "running", particleManager().find(runningSystem_) != nullptr);
}

}  // namespace bc
