// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/ISound.h"
#include "sound/Mixer.h"
#include "sound/Playlist.h"

#include <array>
#include <atomic>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class TiXmlElement;

namespace bc {

class GameVar;

/// A loaded sample and the settings of its definition.
struct SoundSample {
    std::unique_ptr<MixerSample> data;
    std::string path;
    int id = -1;       ///< -1 for a sample that was loaded by name
    int channel = -1;  ///< the channel to play it on, -1 for any free one
    int volume = 100;  ///< percent; used only for positional sounds
    bool positional = false;
};

/// The sound that was last started on a channel.
struct SoundChannelInfo {
    bool playing = false;
    bool positional = false;
    Vector position;
    int sampleIndex = -1;
    int volume = 100;      ///< percent
    bool looping = false;  ///< is repeated at least once
    bool endless = false;  ///< is repeated until it is stopped
};

/// Samples and music on a mixer. A request to play is refused while too many channels play; this
/// number is counted only in updateListener. The variables volume, musicvolume, soundfrequency,
/// soundchannels and soundbuffer are the settings. While the variable logsounds is 1, each request
/// writes a line to the log. shutdown must be called before the registries of commands and
/// variables are cleared.
class Sound : public ISound {
  public:
    static constexpr int channelCount = 32;
    /// Sounds play on channels 0 to 9 only when a request or a definition names the channel; a
    /// sound on "any free channel" gets one of the others.
    static constexpr int reservedChannels = 10;

    /// A sound system on the sound device.
    Sound();
    ~Sound() override;
    Sound(const Sound&) = delete;
    Sound& operator=(const Sound&) = delete;

    bool openAudio() override;
    bool init() override;
    void shutdown() override;
    void playTestSound() override;
    int playIndexAt(const Vector& pos, int index, int loops) override;
    int playNameAt(const Vector& pos, const std::string& name, int loops, int volume) override;
    int playIndexOnChannelAt(int channel, const Vector& pos, int index, int loops) override;
    int playNameOnChannelAt(int channel, const Vector& pos, const std::string& name, int loops,
                            int volume) override;
    int playIndex(int index, int loops) override;
    int playName(const std::string& name, int loops, int volume) override;
    int playIdAt(int id, const Vector& pos, int loops) override;
    int playIdOnChannelAt(int id, int channel, const Vector& pos, int loops) override;
    int playId(int id, int loops) override;
    void setVolume(int volume) override;
    void setMusicVolume(int volume) override;
    void applyVolume() override;
    void applyMusicVolume() override;
    [[nodiscard]] int getVolume() const override;
    void setAudioParams(int frequency, int channels, int bufferSize) override;
    void setAll(int volume, int musicVolume, int frequency, int channels, int bufferSize) override;
    void getSettings(int& volume, int& musicVolume, int& frequency, int& channels,
                     int& bufferSize) const override;
    [[nodiscard]] int findSampleIndex(const std::string& path) const override;
    int loadSampleByName(const std::string& path) override;
    void registerSoundId(int id, const std::string& path) override;
    void registerSound(int id, int channel, int volume, bool positional,
                       const std::string& path) override;
    void loadSoundDefs(const std::string& path) override;
    void updateListener(const Vector& position) override;
    void stopChannel(int channel) override;
    void onMusicFinished() override;
    void startPlaylist(const std::string& name) override;
    void nextTrack() override;
    void update() override;
    [[nodiscard]] IPlaylist* getPlaylist() override;
    /// Null when the sample is not loaded or there is no device.
    [[nodiscard]] virtual SoundSample* getSample(const std::string& path);
    /// Loads a sample and returns its index; -1 and a log line when that fails, -1 alone without a
    /// device.
    virtual int loadSample(int id, int channel, int volume, bool positional,
                           const std::string& path);

    // For dumps and tests.
    /// True while the device is open.
    [[nodiscard]] bool isInitialised() const { return initialised_; }
    /// The number of channels that played at the last updateListener.
    [[nodiscard]] int playingCount() const { return playingCount_; }
    [[nodiscard]] const std::vector<std::unique_ptr<SoundSample>>& samples() const {
        return samples_;
    }
    /// The index of the sample with this id, -1 when there is none.
    [[nodiscard]] int indexOfId(int id) const;
    [[nodiscard]] const SoundChannelInfo& channelInfo(int channel) const {
        return channels_.at(static_cast<std::size_t>(channel));
    }
    [[nodiscard]] const Playlist& playlist() const { return playlist_; }
    /// Appends an element "sound" with the volumes, the settings, the current track and one child
    /// for each channel on which a sound was started.
    void dumpState(TiXmlElement& parent) const;

  protected:
    explicit Sound(std::unique_ptr<Mixer> mixer);

  private:
    /// What a play function was asked for.
    struct Request {
        int id = -1;
        int index = -1;
        int channel = -1;
        Vector position = {};
        int loops = 0;
        /// The request is refused while more channels play.
        int mostPlaying = 0;
        /// The name that was asked for, for the log when there is no such sample.
        std::string_view name = {};
    };

    /// Null for an index out of range.
    [[nodiscard]] SoundSample* sampleAt(int index) const;
    /// The index of the sample with this name, which is loaded if necessary; -1 when that fails.
    [[nodiscard]] int findOrLoad(int channel, int volume, bool positional, const std::string& name);
    /// All requests end here, in one of the two ways below: as sounds of the world at a position,
    /// or as sounds of the player and the menus. Returns the channel or -1.
    int start(const Request& request);
    int startAt(Request request);
    int startPlain(Request request);
    void logRequest(const Request& request, int channel) const;
    void reloadSamples();
    void resumeLoops();
    void bindVariables();
    void registerCommands();

    std::unique_ptr<Mixer> mixer_;
    bool initialised_ = false;
    int playingCount_ = 0;
    std::map<int, int> idMap_;
    std::map<std::string, int> nameMap_;
    std::vector<std::unique_ptr<SoundSample>> samples_;
    std::array<SoundChannelInfo, channelCount> channels_;
    GameVar* volumeVar_ = nullptr;
    GameVar* musicVolumeVar_ = nullptr;
    GameVar* bufferVar_ = nullptr;
    GameVar* channelsVar_ = nullptr;
    GameVar* frequencyVar_ = nullptr;
    GameVar* logVar_ = nullptr;
    /// A file of definitions that was loaded without a device and must be loaded again with one;
    /// empty for none.
    std::string waitingDefs_;
    /// The format to which the loaded samples were converted.
    int sampleFrequency_ = 0;
    int sampleOutputs_ = 0;
    Playlist playlist_;
    /// The mixer's thread sets it.
    std::atomic<bool> musicFinished_ = false;
};

}  // namespace bc
