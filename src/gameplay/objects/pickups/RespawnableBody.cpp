// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/RespawnableBody.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/player/Player.h"
#include "resources/XmlAttributes.h"
#include "world/TouchInfo.h"

#include <tinyxml.h>

namespace bc {

namespace {

// How pickups tell what they were.
constexpr int textSize = 12;
constexpr float textScale = 0.75F;

}  // namespace

RespawnableBody::RespawnableBody() {
    type = "respawnablebody";
    thinks = true;
    solid = false;
    outlined = false;
    textured = true;
    clampTexture = true;
    showDamage = false;
    usesDefaultShape = true;
    flags.set(bodyflag::untouchable);
}

void RespawnableBody::onTouch(const TouchInfo& info) {
    auto* player = dynamic_cast<Player*>(info.other);
    if (player == nullptr || !isAvailable() || !wanted(*player))
        return;
    visible = false;
    nextRespawn = levelTime() + respawnDelay;
    give(*player);
    pickupFeedback();
}

void RespawnableBody::onThink(float /*dt*/) {
    if (!isAvailable() && canRespawn && nextRespawn < levelTime())
        respawn();
}

void RespawnableBody::respawn() {
    visible = true;
    appearEffect(pos);
}

void RespawnableBody::floatText(std::string_view text) {
    spawnText(pos, text, textSize, true, textScale, "vera");
}

void RespawnableBody::announce(int soundId, std::string_view text) {
    playSoundAt(soundId, pos);
    showMessage(text);
    floatText(text);
}

void RespawnableBody::applyAttributes(const std::map<std::string, std::string>& attributes) {
    GameBody::applyAttributes(attributes);
    Attributes(attributes).read("respawndelay", respawnDelay);
}

void RespawnableBody::loadState(const TiXmlElement& e) {
    GameBody::loadState(e);
    nextRespawn = xml::readFloat(e, "nextrespawn");
    if (xml::has(e, "available"))
        visible = xml::readBool(e, "available");
}

void RespawnableBody::saveState(TiXmlElement& e) const {
    GameBody::saveState(e);
    xml::writeFloat(e, "nextrespawn", nextRespawn);
    xml::writeBool(e, "available", visible);
}

void RespawnableBody::dumpState(TiXmlElement& debug) const {
    GameBody::dumpState(debug);
    xml::writeBool(debug, "available", isAvailable());
    xml::writeFloat(debug, "nextrespawn", nextRespawn);
}

}  // namespace bc
