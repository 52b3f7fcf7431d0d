// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

namespace bc {

/// A sample or a piece of music as a mixer holds it. Must not outlive the mixer that made it.
class MixerSample {
  public:
    virtual ~MixerSample() = default;
};
class MixerMusic {
  public:
    virtual ~MixerMusic() = default;
};

/// What plays the sounds: numbered channels for samples, and one stream of music. Paths are those
/// of the disk (already resolved), volumes 0 to 128; a negative volume changes nothing and a
/// larger one counts as 128. Everything may be called while the device is closed and then has no
/// effect.
class Mixer {
  public:
    virtual ~Mixer() = default;

    /// bufferSize in frames. False, with error() telling why, when there is no device or the
    /// settings are of no use.
    [[nodiscard]] virtual bool open(int frequency, int outputs, int bufferSize) = 0;
    virtual void close() = 0;
    [[nodiscard]] virtual std::string error() const = 0;

    /// Each returns how many there are now.
    virtual int allocateChannels(int count) = 0;
    /// Keeps the first count channels from being picked for a sound on any channel.
    virtual int reserveChannels(int count) = 0;
    virtual int groupChannels(int first, int last, int group) = 0;

    /// Null when the file is missing, broken or of an unknown kind.
    [[nodiscard]] virtual std::unique_ptr<MixerSample> loadSample(const std::string& diskPath) = 0;
    /// Starts a sample (loops 0 plays once, negative for ever) on a channel, -1 for any free one.
    /// Returns the channel or -1.
    virtual int play(int channel, MixerSample& sample, int loops) = 0;
    virtual void halt(int channel) = 0;
    /// Channel -1 sets all of them.
    virtual void setVolume(int channel, int volume) = 0;
    [[nodiscard]] virtual int volume(int channel) const = 0;
    [[nodiscard]] virtual bool isPlaying(int channel) const = 0;

    [[nodiscard]] virtual std::unique_ptr<MixerMusic> loadMusic(const std::string& diskPath) = 0;
    /// Once through.
    [[nodiscard]] virtual bool playMusic(MixerMusic& music) = 0;
    virtual void haltMusic() = 0;
    virtual void setMusicVolume(int volume) = 0;
    [[nodiscard]] virtual bool isMusicPlaying() const = 0;
    [[nodiscard]] virtual bool isMusicPaused() const = 0;
    /// hook runs on the mixer's own thread, whenever music ends; null takes it away.
    virtual void onMusicFinished(void (*hook)()) = 0;

  protected:
    static constexpr const char* unusable = "No device plays these settings";
    /// Whether a device could sensibly be asked for these; drivers trust what they are given.
    [[nodiscard]] static bool areSettingsUsable(int frequency, int outputs, int bufferSize) {
        return frequency >= 4000 && frequency <= 192000 && (outputs == 1 || outputs == 2) &&
               bufferSize >= 64 && bufferSize <= 32768;
    }
};

}  // namespace bc
