// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/scenery/SpawnPoint.h"

#include "core/Text.h"
#include "gameplay/actors/GameCategories.h"
#include "particles/ParticleManager.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

namespace bc {

SpawnPoint::SpawnPoint() {
    type = "spawnpoint";
    category = category::spawnPoint;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

std::unique_ptr<Body> SpawnPoint::create() const {
    return std::make_unique<SpawnPoint>();
}

void SpawnPoint::applyAttributes(const std::map<std::string, std::string>& attributes) {
    GameBody::applyAttributes(attributes);
    for (const auto& [name, value] : attributes)
        if (equalsNoCase(name, "startpoint"))
            startPoint = parseBool(value);
}

void SpawnPoint::dumpState(TiXmlElement& debug) const {
    GameBody::dumpState(debug);
    xml::writeBool(debug, "startpoint", startPoint);
}

void SpawnPoint::appearanceEffect() const {
    startParticles("itemrespawn2", pos);
}

NamedPoint::NamedPoint() {
    type = "namedpoint";
    visible = false;
    solid = false;
}

std::unique_ptr<Body> NamedPoint::create() const {
    return std::make_unique<NamedPoint>();
}

void NamedPoint::onLoaded() {
    GameBody::onLoaded();
    // Whatever the level says of it.
    visible = false;
    solid = false;
}

}  // namespace bc
