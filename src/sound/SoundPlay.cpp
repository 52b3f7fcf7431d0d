// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The play requests of Sound.
#include "command/GameVar.h"
#include "core/Log.h"
#include "core/Text.h"
#include "sound/Sound.h"

namespace bc {

namespace {

constexpr const char* testSound = "data/sounds/test/test.ogg";

// A request is refused while more channels than this play. The limit for sounds of the world (At)
// is lower, so that those of the player and the menus are heard in every battle.
constexpr int mostPlayingPlain = 10;
constexpr int mostPlayingAt = 5;

}  // namespace

SoundSample* Sound::sampleAt(int index) const {
    return index >= 0 && index < static_cast<int>(samples_.size())
               ? samples_[static_cast<std::size_t>(index)].get()
               : nullptr;
}

int Sound::findOrLoad(int channel, int volume, bool positional, const std::string& name) {
    const int index = findSampleIndex(name);
    return index < 0 ? loadSample(-1, channel, volume, positional, name) : index;
}

int Sound::start(const Request& request) {
    const SoundSample* sample = sampleAt(request.index);
    int channel = -1;
    if (initialised_ && sample && playingCount_ <= request.mostPlaying)
        channel = mixer_->play(request.channel, *sample->data, request.loops);
    if (channel >= 0) {
        SoundChannelInfo& info = channels_.at(static_cast<std::size_t>(channel));
        info.playing = true;
        info.positional = sample->positional;
        info.position = request.position;
        info.sampleIndex = request.index;
        info.volume = sample->volume;
        info.looping = request.loops == -1 || request.loops >= 1;
        info.endless = request.loops < 0;
    }
    if (logVar_ && logVar_->intValue() == 1)
        logRequest(request, channel);
    return channel;
}

void Sound::logRequest(const Request& request, int channel) const {
    const SoundSample* sample = sampleAt(request.index);
    const int id = request.id < 0 && sample ? sample->id : request.id;
    const std::string name = sample ? sample->path : std::string(request.name);
    logLine("sound id " + std::to_string(id) + " name " + name + " at " +
            formatFloat(request.position.x) + "," + formatFloat(request.position.y) + " channel " +
            std::to_string(channel) + " loops " + std::to_string(request.loops));
}

int Sound::startAt(Request request) {
    request.mostPlaying = mostPlayingAt;
    return start(request);
}

int Sound::startPlain(Request request) {
    const SoundSample* sample = sampleAt(request.index);
    request.channel = sample ? sample->channel : -1;
    request.mostPlaying = mostPlayingPlain;
    return start(request);
}

int Sound::playIndexAt(const Vector& pos, int index, int loops) {
    return playIndexOnChannelAt(-1, pos, index, loops);
}

int Sound::playNameAt(const Vector& pos, const std::string& name, int loops, int volume) {
    const int index = findOrLoad(-1, volume, false, name);
    return startAt({.index = index, .position = pos, .loops = loops, .name = name});
}

int Sound::playIndexOnChannelAt(int channel, const Vector& pos, int index, int loops) {
    return startAt({.index = index, .channel = channel, .position = pos, .loops = loops});
}

int Sound::playNameOnChannelAt(int channel, const Vector& pos, const std::string& name, int loops,
                               int volume) {
    const int index = findOrLoad(channel, volume, true, name);
    return startAt(
        {.index = index, .channel = channel, .position = pos, .loops = loops, .name = name});
}

int Sound::playIndex(int index, int loops) {
    return startPlain({.index = index, .loops = loops});
}

int Sound::playName(const std::string& name, int loops, int volume) {
    const int index = findOrLoad(-1, volume, false, name);
    return startPlain({.index = index, .loops = loops, .name = name});
}

int Sound::playIdAt(int id, const Vector& pos, int loops) {
    const SoundSample* sample = sampleAt(indexOfId(id));
    return playIdOnChannelAt(id, sample ? sample->channel : -1, pos, loops);
}

int Sound::playIdOnChannelAt(int id, int channel, const Vector& pos, int loops) {
    return startAt(
        {.id = id, .index = indexOfId(id), .channel = channel, .position = pos, .loops = loops});
}

int Sound::playId(int id, int loops) {
    return startPlain({.id = id, .index = indexOfId(id), .loops = loops});
}

void Sound::playTestSound() {
    if (!initialised_)
        return;
    // It is played however many sounds play already: the player wants to know whether and how loud
    // sound is heard.
    const int index = findOrLoad(-1, 100, false, testSound);
    start({.index = index, .mostPlaying = channelCount, .name = testSound});
}

}  // namespace bc
