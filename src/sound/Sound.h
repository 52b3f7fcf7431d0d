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

/// A loaded sample and how its definition wants it played.
struct SoundSample {
    std::unique_ptr<MixerSample> data;
    std::string path;
    int id = -1;       ///< -1 when loaded by name
    int channel = -1;  ///< a fixed mixing channel, or -1 for any free one
    int volume = 100;  ///< percent; only positional sounds follow it
    bool positional = false;
};

/// What was last started on a mixing channel.
struct SoundChannelInfo {
    bool playing = false;
    bool positional = false;
    Vector position;
    int sampleIndex = -1;
    int volume = 100;
    bool looping = false;
    bool endless = false;  ///< plays until it is stopped
};

/// Samples and music. Every play request keeps to the limits on sounds at once, which count the
/// channels found playing at the last updateListener. Volume and device settings are the variables
/// volume, musicvolume, soundfrequency, soundchannels and soundbuffer; while the variable
/// logsounds is 1, each request writes a line to the log. Call shutdown before the registries of
/// commands and variables are cleared.
class Sound : public ISound {
  public:
    static constexpr int channelCount = 32;
    /// Channels 0 to 9 are only played on by name; a sound on any channel takes one of the others.
    static constexpr int reservedChannels = 10;

    /// Plays on the sound device.
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
    /// The index of the new sample, or -1 and a log line.
    virtual int loadSample(int id, int channel, int volume, bool positional,
                           const std::string& path);

    // Looking inside.
    [[nodiscard]] bool isInitialised() const { return initialised_; }
    /// Channels found playing at the last updateListener.
    [[nodiscard]] int playingCount() const { return playingCount_; }
    [[nodiscard]] const std::vector<std::unique_ptr<SoundSample>>& samples() const {
        return samples_;
    }
    /// The sample that an id stands for, -1 when there is none.
    [[nodiscard]] int indexOfId(int id) const;
    [[nodiscard]] const SoundChannelInfo& channelInfo(int channel) const {
        return channels_.at(static_cast<std::size_t>(channel));
    }
    [[nodiscard]] const Playlist& playlist() const { return playlist_; }
    /// Appends an element "sound" with volumes, settings, the current track and one child for each
    /// channel that ever played.
    void dumpState(TiXmlElement& parent) const;

  protected:
    explicit Sound(std::unique_ptr<Mixer> mixer);

  private:
    struct Request {
        int id = -1;
        int index = -1;
        int channel = -1;
        Vector position = {};
        int loops = 0;
        int mostPlaying = 0;
        std::string_view name = {};
    };

    [[nodiscard]] SoundSample* sampleAt(int index) const;
    [[nodiscard]] int findOrLoad(int channel, int volume, bool positional, const std::string& name);
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
    /// The file of definitions whose samples wait for a device, empty when none do.
    std::string waitingDefs_;
    // What the loaded samples were converted to.
    int sampleFrequency_ = 0;
    int sampleOutputs_ = 0;
    Playlist playlist_;
    // Set on the mixer's thread.
    std::atomic<bool> musicFinished_ = false;
};

}  // namespace bc
