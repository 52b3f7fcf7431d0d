// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "sound/Mixer.h"

#include <cstdint>
#include <vector>

namespace bc {

/// A mixer without a device. It reads the headers of files (and fails for a missing or damaged
/// one), and samples and music count as playing for their length on the game's clock (core/Ticks).
/// With the virtual clock, two runs of the same game therefore do the same.
class VirtualMixer final : public Mixer {
  public:
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
    /// A sample or music that was started at startTicks and plays for lengthMs milliseconds, or
    /// until it is stopped.
    struct Voice {
        bool started = false;
        bool endless = false;
        std::uint32_t startTicks = 0;
        std::uint64_t lengthMs = 0;
        int volume = 128;

        void start(std::uint64_t ms, bool forEver);
        [[nodiscard]] bool isPlaying() const;
    };

    std::vector<Voice> channels_;
    Voice music_;
    int reserved_ = 0;
    bool open_ = false;
};

}  // namespace bc
