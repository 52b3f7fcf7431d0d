// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/scenery/SoundBody.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "ports/ISound.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

namespace bc {

SoundBody::SoundBody() {
    type = "soundbody";
    thinks = true;
    visible = false;
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

SoundBody::~SoundBody() {
    // A level's sounds end with it.
    ISound* output = GameplaySingleton::instance().sound();
    if (channel_ != none && output != nullptr)
        output->stopChannel(channel_);
}

std::unique_ptr<Body> SoundBody::create() const {
    return std::make_unique<SoundBody>();
}

void SoundBody::applyAttributes(const std::map<std::string, std::string>& attributes) {
    GameBody::applyAttributes(attributes);
    const Attributes given(attributes);
    given.read("sound", sound);
    given.read("volume", volume);
    given.read("loops", loops);
}

void SoundBody::onThink(float /*dt*/) {
    ISound* output = GameplaySingleton::instance().sound();
    const GameBody* player = GameplaySingleton::instance().craft;
    if (output == nullptr || player == nullptr)
        return;
    const float d2 = planarDistanceSquared(player->pos, pos);
    if (channel_ == none && d2 < reach * reach) {
        channel_ = output->playNameOnChannelAt(none, pos, sound, loops, volume);
    } else if (channel_ != none && d2 > reach * reach) {
        output->stopChannel(channel_);
        channel_ = none;
    }
}

void SoundBody::dumpState(TiXmlElement& debug) const {
    GameBody::dumpState(debug);
    xml::writeBool(debug, "playing", channel_ != none);
}

}  // namespace bc
