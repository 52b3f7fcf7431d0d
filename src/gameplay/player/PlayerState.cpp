// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Saved and dumped form of the player.
#include "gameplay/player/Player.h"
#include "gameplay/weapons/GrappleProjectile.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

namespace bc {

void Player::saveState(TiXmlElement& e) const {
    GameBody::saveState(e);
    inventory.saveState(e);
    progress.saveState(e);
    xml::writeFloat(e, "airtime", airTime);
    xml::writeBool(e, "canjump", canJump);
    xml::writeBool(e, "standsonearlier", standsOnEarlier);
    xml::writeFloat(e, "boostleft", boostLeft);
    xml::writeFloat(e, "boostrecharge", boostRecharge);
}

void Player::loadState(const TiXmlElement& e) {
    GameBody::loadState(e);
    inventory.loadState(e);
    progress.loadState(e);
    airTime = xml::readFloat(e, "airtime");
    canJump = !xml::has(e, "canjump") || xml::readBool(e, "canjump");
    standsOnEarlier = xml::readBool(e, "standsonearlier");
    boostLeft = xml::readFloat(e, "boostleft");
    boostRecharge = xml::readFloat(e, "boostrecharge");
    // Saved between death and the loading of the last save.
    if (dying)
        revivePending = true;
}

void Player::dumpState(TiXmlElement& debug) const {
    GameBody::dumpState(debug);
    xml::writeFloat(debug, "airtime", airTime);
    xml::writeBool(debug, "canjump", canJump);
    xml::writeBool(debug, "dead", dead);
    xml::writeFloat(debug, "respawntime", respawnTime);
    xml::writeBool(debug, "revivepending", revivePending);
    xml::writeBool(debug, "grappling", grappling);
    xml::writeInt(debug, "grapplehook", grappleHook != nullptr ? grappleHook->autoid : 0);
    xml::writeBool(debug, "holding", grappleHook != nullptr && grappleHook->holding);
    xml::writeFloat(debug, "boostleft", boostLeft);
    xml::writeFloat(debug, "boostrecharge", boostRecharge);
    xml::writeValue(debug, "aim", aim);
    xml::writeValue(debug, "mouseworld", mouseWorldPos);
    progress.saveState(debug);
    inventory.dumpState(debug);
}

}  // namespace bc
