// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "sound/Mixer.h"

namespace bc {

/// Plays on the sound device through SDL_mixer. There must be only one at a time, because
/// SDL_mixer's state belongs to the process.
class SdlMixer final : public Mixer {
  public:
    SdlMixer() = default;
    ~SdlMixer() override;
    SdlMixer(const SdlMixer&) = delete;
    SdlMixer& operator=(const SdlMixer&) = delete;

    [[nodiscard]] bool open(int frequency, int outputs, int bufferSize) override;
    void close() override;
    [[nodiscard]] std::string error() const override;
    int allocateChannels(int count) override;
    int reserveChannels(int count) override;
    int groupChannels(int first, int last, int group) override;
    [[nodiscard]] std::unique_ptr<MixerSample> loadSample(const std::string& diskPath) override;
    int play(int channel, MixerSample& sample, int loops) override;
    void halt(int channel) override;
    void setVolume(int channel, int volume) override;
    [[nodiscard]] int volume(int channel) const override;
    [[nodiscard]] bool isPlaying(int channel) const override;
    [[nodiscard]] std::unique_ptr<MixerMusic> loadMusic(const std::string& diskPath) override;
    [[nodiscard]] bool playMusic(MixerMusic& music) override;
    void haltMusic() override;
    void setMusicVolume(int volume) override;
    [[nodiscard]] bool isMusicPlaying() const override;
    [[nodiscard]] bool isMusicPaused() const override;
    void onMusicFinished(void (*hook)()) override;

  private:
    // Every function that uses a channel checks this, because SDL_mixer would use freed memory
    // after it was closed.
    bool open_ = false;
    int channelCount_ = 0;
    std::string error_;
};

}  // namespace bc
