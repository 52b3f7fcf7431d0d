// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/scenery/SoundBody.h"

#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "ports/ISound.h"
#include "world/BodyFields.h"

namespace bc {

SoundBody::SoundBody() {
    thinks = true;
    visible = false;
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

void SoundBody::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level().box(16, 16).with("entity", "true").with("visible", "false");
    f.param("sound", sound, "File of the sound.").kind(ParamKind::sound).required();
    f.param("volume", volume, "Percent.");
    f.param("loops", loops, "Repetitions; -1 for ever.");
    f.shown("playing", channel_ != none);
}

SoundBody::~SoundBody() {
    // A level's sounds end with it.
    ISound* output = GameplaySingleton::instance().sound();
    if (channel_ != none && output != nullptr)
        output->stopChannel(channel_);
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

}  // namespace bc
