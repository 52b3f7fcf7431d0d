// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Text forms of a game body: level attributes, saved state, dumps.
#include "core/Text.h"
#include "gameplay/actors/GameBody.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

#include <algorithm>

namespace bc {

namespace {

/// More than a world has bodies.
constexpr int mostChildren = 1 << 20;

}  // namespace

void GameBody::applyAttributes(const std::map<std::string, std::string>& attributes) {
    Body::applyAttributes(attributes);
    for (const auto& [name, value] : attributes) {
        if (equalsNoCase(name, "health"))
            health = maxHealth = initialHealth = parseInt(value);
        else if (equalsNoCase(name, "lives"))
            numLives = parseInt(value);
    }
}

void GameBody::saveState(TiXmlElement& e) const {
    Body::saveState(e);
    xml::writeInt(e, "health", health);
    xml::writeInt(e, "maxhealth", maxHealth);
    xml::writeInt(e, "armour", armour);
    xml::writeInt(e, "maxarmour", maxArmour);
    xml::writeBool(e, "takedamage", takesDamage);
    xml::writeBool(e, "dying", dying);
    xml::writeBool(e, "showdamage", showDamage);
    xml::writeFloat(e, "deathtime", deathTime);
    xml::writeFloat(e, "deathdelay", deathDelay);
    xml::writeFloat(e, "nextpaintime", nextPainTime);
    xml::writeBool(e, "notarget", noTarget);
    xml::writeBool(e, "hasquad", hasQuad);
    xml::writeFloat(e, "damagefactor", damageFactor);
    xml::writeFloat(e, "quadtime", quadTime);
    xml::writeInt(e, "numalive", numAlive);
    xml::writeInt(e, "maxalive", maxAlive);
    xml::writeInt(e, "ownerid", owner != nullptr ? owner->autoid : 0);
    xml::writeBool(e, "hasinvinc", hasInvinc);
    xml::writeFloat(e, "damagetakenfactor", damageTakenFactor);
    xml::writeFloat(e, "invinctime", invincTime);
    xml::writeInt(e, "numlives", numLives);
    xml::writeBool(e, "inlimbo", inLimbo);
    xml::writeFloat(e, "revivetime", reviveTime);
    xml::writeInt(e, "initialhealth", initialHealth);
    if (inLimbo)
        xml::writeValue(e, "limboplace", limboPlace);
}

void GameBody::loadState(const TiXmlElement& e) {
    Body::loadState(e);
    health = xml::readInt(e, "health");
    maxHealth = xml::readInt(e, "maxhealth");
    armour = xml::readInt(e, "armour");
    maxArmour = xml::readInt(e, "maxarmour");
    takesDamage = xml::readBool(e, "takedamage");
    dying = xml::readBool(e, "dying");
    showDamage = xml::readBool(e, "showdamage");
    deathTime = xml::readFloat(e, "deathtime");
    deathDelay = xml::readFloat(e, "deathdelay");
    nextPainTime = xml::readFloat(e, "nextpaintime");
    noTarget = xml::readBool(e, "notarget");
    hasQuad = xml::readBool(e, "hasquad");
    damageFactor = xml::readFloat(e, "damagefactor");
    quadTime = xml::readFloat(e, "quadtime");
    numAlive = std::clamp(xml::readInt(e, "numalive"), 0, mostChildren);
    maxAlive = xml::readInt(e, "maxalive");
    ownerId = xml::readInt(e, "ownerid");
    hasInvinc = xml::readBool(e, "hasinvinc");
    damageTakenFactor = xml::readFloat(e, "damagetakenfactor");
    invincTime = xml::readFloat(e, "invinctime");
    numLives = xml::readInt(e, "numlives");
    inLimbo = xml::readBool(e, "inlimbo");
    limboPlace = pos;
    xml::readValue(e, "limboplace", limboPlace);
    reviveTime = xml::readFloat(e, "revivetime");
    initialHealth = xml::readInt(e, "initialhealth");
}

void GameBody::dumpState(TiXmlElement& debug) const {
    Body::dumpState(debug);
    xml::writeInt(debug, "health", health);
    xml::writeInt(debug, "maxhealth", maxHealth);
    xml::writeInt(debug, "armour", armour);
    xml::writeInt(debug, "maxarmour", maxArmour);
    xml::writeBool(debug, "takesdamage", takesDamage);
    xml::writeBool(debug, "showdamage", showDamage);
    xml::writeInt(debug, "flags", static_cast<int>(flags.bits));
    xml::writeInt(debug, "team", static_cast<int>(team.bits));
    xml::writeBool(debug, "notarget", noTarget);
    xml::writeBool(debug, "god", godMode);
    xml::writeBool(debug, "dying", dying);
    xml::writeBool(debug, "inlimbo", inLimbo);
    xml::writeFloat(debug, "revivetime", reviveTime);
    xml::writeInt(debug, "numlives", numLives);
    xml::writeBool(debug, "hasquad", hasQuad);
    xml::writeFloat(debug, "quadtime", quadTime);
    xml::writeFloat(debug, "damagefactor", damageFactor);
    xml::writeBool(debug, "hasinvinc", hasInvinc);
    xml::writeFloat(debug, "invinctime", invincTime);
    xml::writeFloat(debug, "damagetakenfactor", damageTakenFactor);
    xml::writeFloat(debug, "nextpaintime", nextPainTime);
    xml::writeInt(debug, "owner", owner != nullptr ? owner->autoid : 0);
    xml::writeInt(debug, "numalive", numAlive);
    xml::writeInt(debug, "maxalive", maxAlive);
    std::string ids;
    for (const GameBody* child : children)
        ids += (ids.empty() ? "" : ",") + std::to_string(child->autoid);
    xml::writeString(debug, "children", ids);
}

}  // namespace bc
