// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/ISound.h"

#include <algorithm>
#include <string>
#include <vector>

namespace bc::test {

/// Notes what is played instead of playing it.
class FakeSound final : public ISound {
  public:
    struct Play {
        int id;
        Vector position;
        int channel;
        int loops;
        std::string name;
    };

    std::vector<Play> plays;
    std::vector<int> stopped;
    /// Handed out to plays on any free channel; -1 refuses them.
    int freeChannel = 12;

    [[nodiscard]] int countOf(int id) const {
        return static_cast<int>(
            std::count_if(plays.begin(), plays.end(), [id](const Play& p) { return p.id == id; }));
    }

    bool openAudio() override { return true; }
    bool init() override { return true; }
    void shutdown() override {}
    void playTestSound() override {}
    int playIndexAt(const Vector&, int, int) override { return -1; }
    int playNameAt(const Vector& pos, const std::string& name, int loops, int) override {
        return note({-1, pos, -1, loops, name});
    }
    int playIndexOnChannelAt(int, const Vector&, int, int) override { return -1; }
    int playNameOnChannelAt(int channel, const Vector& pos, const std::string& name, int loops,
                            int) override {
        return note({-1, pos, channel, loops, name});
    }
    int playIndex(int, int) override { return -1; }
    int playName(const std::string& name, int loops, int) override {
        return note({-1, {}, -1, loops, name});
    }
    int playIdAt(int id, const Vector& pos, int loops) override {
        return note({id, pos, -1, loops, {}});
    }
    int playIdOnChannelAt(int id, int channel, const Vector& pos, int loops) override {
        return note({id, pos, channel, loops, {}});
    }
    int playId(int id, int loops) override { return note({id, {}, -1, loops, {}}); }
    void setVolume(int) override {}
    void setMusicVolume(int) override {}
    void applyVolume() override {}
    void applyMusicVolume() override {}
    int getVolume() const override { return 0; }
    void setAudioParams(int, int, int) override {}
    void setAll(int, int, int, int, int) override {}
    void getSettings(int&, int&, int&, int&, int&) const override {}
    int findSampleIndex(const std::string&) const override { return -1; }
    int loadSampleByName(const std::string&) override { return -1; }
    void registerSoundId(int, const std::string&) override {}
    void registerSound(int, int, int, bool, const std::string&) override {}
    void loadSoundDefs(const std::string&) override {}
    void updateListener(const Vector&) override {}
    void stopChannel(int channel) override { stopped.push_back(channel); }
    void onMusicFinished() override {}
    void startPlaylist(const std::string&) override {}
    void nextTrack() override {}
    void update() override {}
    IPlaylist* getPlaylist() override { return nullptr; }

  private:
    int note(const Play& play) {
        plays.push_back(play);
        return play.channel >= 0 ? play.channel : freeChannel;
    }
};

}  // namespace bc::test
