// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "sound/VirtualMixer.h"

#include "core/Ticks.h"
#include "sound/AudioFile.h"

#include <algorithm>

namespace bc {

namespace {

struct VirtualSample final : MixerSample {
    std::uint32_t lengthMs = 0;
};

struct VirtualMusic final : MixerMusic {
    std::uint32_t lengthMs = 0;
};

/// A sample or a piece of music that knows only its length; null when the file cannot be read.
template <class Made, class Base>
std::unique_ptr<Base> measured(const std::string& diskPath) {
    const auto info = readAudioFileInfo(diskPath);
    if (!info)
        return nullptr;
    auto made = std::make_unique<Made>();
    made->lengthMs = info->lengthMs();
    return made;
}

}  // namespace

void VirtualMixer::Voice::start(std::uint64_t ms, bool forEver) {
    started = true;
    endless = forEver;
    startTicks = ticks();
    lengthMs = ms;
}

bool VirtualMixer::Voice::isPlaying() const {
    return started && (endless || ticks() - startTicks < lengthMs);
}

bool VirtualMixer::open(int frequency, int outputs, int bufferSize) {
    close();
    open_ = areSettingsUsable(frequency, outputs, bufferSize);
    return open_;
}

void VirtualMixer::close() {
    open_ = false;
    channels_.clear();
    music_.started = false;
}

std::string VirtualMixer::error() const {
    return unusable;
}

int VirtualMixer::allocateChannels(int count) {
    if (open_)
        channels_.resize(static_cast<std::size_t>(std::max(count, 0)));
    return static_cast<int>(channels_.size());
}

int VirtualMixer::reserveChannels(int count) {
    reserved_ = std::clamp(count, 0, static_cast<int>(channels_.size()));
    return reserved_;
}

int VirtualMixer::groupChannels(int first, int last, int /*group*/) {
    const int end = std::min(last, static_cast<int>(channels_.size()) - 1);
    return std::max(end - std::max(first, 0) + 1, 0);
}

std::unique_ptr<MixerSample> VirtualMixer::loadSample(const std::string& diskPath) {
    return open_ ? measured<VirtualSample, MixerSample>(diskPath) : nullptr;
}

int VirtualMixer::play(int channel, MixerSample& sample, int loops) {
    const int count = static_cast<int>(channels_.size());
    if (channel == -1) {
        channel = reserved_;
        while (channel < count && isPlaying(channel))
            ++channel;
    }
    if (channel < 0 || channel >= count)
        return -1;
    const std::uint64_t once = static_cast<VirtualSample&>(sample).lengthMs;
    channels_[static_cast<std::size_t>(channel)].start(
        once * (static_cast<std::uint64_t>(std::max(loops, 0)) + 1), loops < 0);
    return channel;
}

void VirtualMixer::halt(int channel) {
    if (channel >= 0 && channel < static_cast<int>(channels_.size()))
        channels_[static_cast<std::size_t>(channel)].started = false;
}

void VirtualMixer::setVolume(int channel, int volume) {
    if (volume < 0)
        return;
    for (int i = 0; i < static_cast<int>(channels_.size()); ++i)
        if (channel == -1 || channel == i)
            channels_[static_cast<std::size_t>(i)].volume = std::min(volume, 128);
}

int VirtualMixer::volume(int channel) const {
    return channel >= 0 && channel < static_cast<int>(channels_.size())
               ? channels_[static_cast<std::size_t>(channel)].volume
               : 0;
}

bool VirtualMixer::isPlaying(int channel) const {
    return channel >= 0 && channel < static_cast<int>(channels_.size()) &&
           channels_[static_cast<std::size_t>(channel)].isPlaying();
}

std::unique_ptr<MixerMusic> VirtualMixer::loadMusic(const std::string& diskPath) {
    return measured<VirtualMusic, MixerMusic>(diskPath);
}

bool VirtualMixer::playMusic(MixerMusic& music) {
    if (open_)
        music_.start(static_cast<VirtualMusic&>(music).lengthMs, false);
    return open_;
}

void VirtualMixer::haltMusic() {
    music_.started = false;
}

void VirtualMixer::setMusicVolume(int volume) {
    if (volume >= 0)
        music_.volume = std::min(volume, 128);
}

bool VirtualMixer::isMusicPlaying() const {
    return music_.isPlaying();
}

bool VirtualMixer::isMusicPaused() const {
    return false;
}

void VirtualMixer::onMusicFinished(void (*)()) {
    // There is no thread that could call the hook. Sound asks isMusicPlaying every frame anyway.
}

}  // namespace bc
