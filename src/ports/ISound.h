// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

#include <string>

namespace bc {

class IPlaylist;

/// Sample playback on 32 mixing channels and the music. A sample is known by its index (load
/// order), its id (from the definitions file) or its file name. loops: 0 plays once, -1 forever.
/// Channel -1 is any free one. Volumes of samples are percentages, the two master volumes 0..128.
/// Play operations return the channel, or -1 when nothing plays (no device, unknown sample, too
/// many sounds at once).
class ISound {
  public:
    virtual ~ISound() = default;
    virtual bool openAudio() = 0;
    virtual bool init() = 0;
    virtual void shutdown() = 0;
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
    virtual void setVolume(int volume) = 0;
    virtual void setMusicVolume(int volume) = 0;
    virtual void applyVolume() = 0;
    virtual void applyMusicVolume() = 0;
    [[nodiscard]] virtual int getVolume() const = 0;
    virtual void setAudioParams(int frequency, int channels, int bufferSize) = 0;
    virtual void setAll(int volume, int musicVolume, int frequency, int channels,
                        int bufferSize) = 0;
    virtual void getSettings(int& volume, int& musicVolume, int& frequency, int& channels,
                             int& bufferSize) const = 0;
    /// -1 when the sample is not loaded.
    [[nodiscard]] virtual int findSampleIndex(const std::string& path) const = 0;
    virtual int loadSampleByName(const std::string& path) = 0;
    virtual void registerSoundId(int id, const std::string& path) = 0;
    virtual void registerSound(int id, int channel, int volume, bool positional,
                               const std::string& path) = 0;
    virtual void loadSoundDefs(const std::string& path) = 0;
    /// Once a frame: recomputes the volumes of positional sounds for a listener at position.
    virtual void updateListener(const Vector& position) = 0;
    virtual void stopChannel(int channel) = 0;
    virtual void onMusicFinished() = 0;
    virtual void startPlaylist(const std::string& name) = 0;
    virtual void nextTrack() = 0;
    virtual void update() = 0;
    [[nodiscard]] virtual IPlaylist* getPlaylist() = 0;
};

}  // namespace bc
