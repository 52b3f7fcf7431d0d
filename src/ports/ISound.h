// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

#include <string>

namespace bc {

class IPlaylist;

/// Plays samples on 32 channels, and music. A sample has an index (the order of loading), an id
/// (from the definitions file) and a file name, and can be played by each of them. loops is how
/// often a sample is repeated: 0 plays it once, -1 repeats it for ever. Channel -1 stands for any
/// free one. The volume of a sample is in percent; the two master volumes are 0 to 128. Positions
/// are world units. All play operations return the channel, or -1 when nothing plays: because there
/// is no device, the sample is unknown or too many sounds play already.
class ISound {
  public:
    virtual ~ISound() = default;
    /// Opens the device with the current settings, closing it first. False when that fails.
    virtual bool openAudio() = 0;
    /// Called once: binds the settings, registers commands, opens the device. False without one;
    /// everything can be called then, but nothing is heard.
    virtual bool init() = 0;
    virtual void shutdown() = 0;
    /// Plays a sample that lets the player judge the settings.
    virtual void playTestSound() = 0;
    virtual int playIndexAt(const Vector& pos, int index, int loops) = 0;
    virtual int playNameAt(const Vector& pos, const std::string& name, int loops, int volume) = 0;
    virtual int playIndexOnChannelAt(int channel, const Vector& pos, int index, int loops) = 0;
    virtual int playNameOnChannelAt(int channel, const Vector& pos, const std::string& name,
                                    int loops, int volume) = 0;
    virtual int playIndex(int index, int loops) = 0;
    virtual int playName(const std::string& name, int loops, int volume) = 0;
    virtual int playIdAt(int id, const Vector& pos, int loops) = 0;
    virtual int playIdOnChannelAt(int id, int channel, const Vector& pos, int loops) = 0;
    virtual int playId(int id, int loops) = 0;
    /// The master volume of all samples. Values outside 0 to 128 are refused on the console.
    virtual void setVolume(int volume) = 0;
    virtual void setMusicVolume(int volume) = 0;
    /// Take over the volumes from their variables.
    virtual void applyVolume() = 0;
    virtual void applyMusicVolume() = 0;
    /// 0 without a device.
    [[nodiscard]] virtual int getVolume() const = 0;
    /// Opens the device with other settings: samples a second, 1 or 2 outputs, buffer in frames.
    /// When that fails, the device is opened with the former settings.
    virtual void setAudioParams(int frequency, int channels, int bufferSize) = 0;
    /// setAudioParams and setVolume; musicVolume is ignored.
    virtual void setAll(int volume, int musicVolume, int frequency, int channels,
                        int bufferSize) = 0;
    virtual void getSettings(int& volume, int& musicVolume, int& frequency, int& channels,
                             int& bufferSize) const = 0;
    /// -1 when the sample is not loaded.
    [[nodiscard]] virtual int findSampleIndex(const std::string& path) const = 0;
    /// The index of the sample, or -1 and a log line when it cannot be loaded.
    virtual int loadSampleByName(const std::string& path) = 0;
    /// Gives the sample of this file, loaded if necessary, an id. channel, volume and positional
    /// hold for a sample that is loaded now; one that was loaded before keeps its own.
    virtual void registerSoundId(int id, const std::string& path) = 0;
    virtual void registerSound(int id, int channel, int volume, bool positional,
                               const std::string& path) = 0;
    /// Registers all sounds of an XML file. A file that cannot be read is logged.
    virtual void loadSoundDefs(const std::string& path) = 0;
    /// Called once a frame: sets the volume of every channel for a listener at position.
    virtual void updateListener(const Vector& position) = 0;
    virtual void stopChannel(int channel) = 0;
    /// The mixer calls it on its own thread whenever a track has ended.
    virtual void onMusicFinished() = 0;
    virtual void startPlaylist(const std::string& name) = 0;
    virtual void nextTrack() = 0;
    /// Called once a frame: plays the next track when none is playing.
    virtual void update() = 0;
    [[nodiscard]] virtual IPlaylist* getPlaylist() = 0;
};

}  // namespace bc
