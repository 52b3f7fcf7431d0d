// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

namespace bc {

/// A sample or a piece of music, loaded by a mixer. Must be deleted before that mixer is.
class MixerSample {
  public:
    virtual ~MixerSample() = default;
};
class MixerMusic {
  public:
    virtual ~MixerMusic() = default;
};

/// Plays samples on numbered channels, and one piece of music. Paths are those of the operating
/// system (files::resolve returns them). Volumes are 0 to 128; a negative one changes nothing and a
/// larger one counts as 128. All functions may be called while the device is closed; they do
/// nothing then.
class Mixer {
  public:
    virtual ~Mixer() = default;

    /// Opens the device, closing it first: frequency in frames a second, 1 or 2 outputs, bufferSize
    /// in frames. False when there is no device or it cannot play this; error() says why.
    [[nodiscard]] virtual bool open(int frequency, int outputs, int bufferSize) = 0;
    virtual void close() = 0;
    [[nodiscard]] virtual std::string error() const = 0;

    /// These return the number of channels that exist, are reserved or belong to the group
    /// afterwards.
    virtual int allocateChannels(int count) = 0;
    /// Excludes the first count channels when play looks for a free one.
    virtual int reserveChannels(int count) = 0;
    virtual int groupChannels(int first, int last, int group) = 0;

    /// Null when the file is missing, damaged or in an unknown format, or the device is closed.
    [[nodiscard]] virtual std::unique_ptr<MixerSample> loadSample(const std::string& diskPath) = 0;
    /// Starts a sample on a channel, or on any free one for channel -1. loops is the number of
    /// repetitions; a negative number repeats it for ever. Returns the channel, or -1 when the
    /// sample does not play.
    virtual int play(int channel, MixerSample& sample, int loops) = 0;
    virtual void halt(int channel) = 0;
    /// Channel -1 stands for all channels.
    virtual void setVolume(int channel, int volume) = 0;
    [[nodiscard]] virtual int volume(int channel) const = 0;
    [[nodiscard]] virtual bool isPlaying(int channel) const = 0;

    /// Null when the file is missing, damaged or in an unknown format.
    [[nodiscard]] virtual std::unique_ptr<MixerMusic> loadMusic(const std::string& diskPath) = 0;
    /// Plays the music once, in place of what is playing. False on failure.
    [[nodiscard]] virtual bool playMusic(MixerMusic& music) = 0;
    virtual void haltMusic() = 0;
    virtual void setMusicVolume(int volume) = 0;
    [[nodiscard]] virtual bool isMusicPlaying() const = 0;
    [[nodiscard]] virtual bool isMusicPaused() const = 0;
    /// Sets the function that the mixer calls on its own thread whenever music has ended; null for
    /// none.
    virtual void onMusicFinished(void (*hook)()) = 0;

  protected:
    static constexpr const char* unusable = "No device plays these settings";
    /// Whether a device may be opened with these settings. Drivers do not check them.
    [[nodiscard]] static bool areSettingsUsable(int frequency, int outputs, int bufferSize) {
        return frequency >= 4000 && frequency <= 192000 && (outputs == 1 || outputs == 2) &&
               bufferSize >= 64 && bufferSize <= 32768;
    }
};

}  // namespace bc
