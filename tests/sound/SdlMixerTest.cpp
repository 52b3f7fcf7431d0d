// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// What reaches the device, written to a file by SDL's disk driver faster than it would be heard.
#include "SoundFixture.h"

#include "support/Places.h"

#include <SDL/SDL.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <thread>

namespace bc {
namespace {

class SdlMixerTest : public SoundFixture {
  protected:
    SdlMixerTest() {
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIOFILE", output().c_str(), 1);
        setenv("SDL_DISKAUDIODELAY", "1", 1);
        vars().setVar("logsounds", "0");
        file("a.wav", flatWav(4410, 8000));
        file("b.wav", flatWav(4410, -3000));
    }
    ~SdlMixerTest() override { sound.shutdown(); }

    [[nodiscard]] std::string output() const { return data() + "/out.raw"; }
    void open() {
        logOf([this] { sound.init(); });
        ASSERT_TRUE(sound.isInitialised());
        define(sound, {"id='1' path='a.wav' channel='-1' volume='100' positional='true'",
                       "id='2' path='b.wav' channel='3' volume='100' positional='false'"});
    }
    /// Lets the device go on until no sample plays.
    void playOut() {
        do {
            std::this_thread::yield();
            sound.updateListener({});
        } while (sound.playingCount() > 0);
    }
    /// Closes the device and reads what it was given.
    std::vector<int> heard() {
        sound.shutdown();
        const std::string bytes = get(output());
        std::vector<int> samples;
        for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
            samples.push_back(static_cast<std::int16_t>(
                static_cast<unsigned char>(bytes[i]) |
                static_cast<unsigned>(static_cast<unsigned char>(bytes[i + 1])) << 8));
        return samples;
    }

    Sound sound;
};

/// How many of the samples have each level, silence left out.
std::map<int, int> levels(const std::vector<int>& samples) {
    std::map<int, int> counts;
    for (const int sample : samples)
        if (sample != 0)
            ++counts[sample];
    return counts;
}

using Levels = std::map<int, int>;

constexpr long threeRounds = 13230;

TEST_F(SdlMixerTest, DistanceSetsTheLevel) {
    open();
    for (const float distance : {0.0F, 240.0F, 360.0F, 480.0F}) {
        SDL_LockAudio();
        EXPECT_EQ(sound.playIdAt(1, {distance, 0}, 0), 10);
        sound.updateListener({});
        SDL_UnlockAudio();
        playOut();
    }
    EXPECT_EQ(levels(heard()), (Levels{{8000, 4410}, {4000, 4410}, {2000, 4410}}));
}

TEST_F(SdlMixerTest, LoopsWithoutAGapAndStops) {
    open();
    SDL_LockAudio();
    EXPECT_EQ(sound.playId(2, 2), 3);
    SDL_UnlockAudio();
    playOut();
    const int endless = sound.playIdOnChannelAt(1, -1, {}, -1);
    // Three rounds and more are written before it is stopped.
    const auto written = [this] { return std::filesystem::file_size(output()); };
    const auto before = written();
    while (written() - before < 35280)
        std::this_thread::yield();
    sound.stopChannel(endless);
    playOut();
    const std::vector<int> samples = heard();
    const auto start = std::find(samples.begin(), samples.end(), -3000);
    ASSERT_GE(samples.end() - start, threeRounds);
    EXPECT_TRUE(std::all_of(start, start + threeRounds, [](int s) { return s == -3000; }));
    EXPECT_EQ(levels(samples)[-3000], threeRounds);
    const auto again = std::find(samples.begin(), samples.end(), 8000);
    ASSERT_GE(samples.end() - again, threeRounds);
    EXPECT_TRUE(std::all_of(again, again + threeRounds, [](int s) { return s == 8000; }));
}

TEST_F(SdlMixerTest, SoundsAddUpAndVolumeScalesThem) {
    open();
    SDL_LockAudio();
    sound.playId(2, 0);
    sound.playIdAt(1, {}, 0);
    sound.updateListener({});
    SDL_UnlockAudio();
    playOut();
    run("setvolume 32");
    SDL_LockAudio();
    sound.playId(2, 0);
    SDL_UnlockAudio();
    playOut();
    EXPECT_EQ(levels(heard()), (Levels{{5000, 4410}, {-750, 4410}}));
}

// Battle at its worst: ten of the game's own sounds from the same moment on.
TEST_F(SdlMixerTest, TenEffectsAtOnceDoNotClip) {
    open();
    files::setFolders(test::gamePath(""), test::gamePath(""));
    logOf([this] { sound.loadSoundDefs("data/sounds/sounds.xml"); });
    SDL_LockAudio();
    int channel = 10;
    for (const int id : {0, 1, 2, 4, 5, 12, 21, 23, 33, 37}) {
        EXPECT_EQ(sound.playIdOnChannelAt(id, channel, {}, 0), channel) << id;
        ++channel;
    }
    SDL_UnlockAudio();
    playOut();
    const std::vector<int> samples = heard();
    const auto [low, high] = std::minmax_element(samples.begin(), samples.end());
    EXPECT_GT(*low, -32768);
    EXPECT_LT(*high, 32767);
    // More than the highest peak of any one.
    EXPECT_GT(*high - *low, 2 * 0.17 * 32768);
}

TEST_F(SdlMixerTest, MusicPlaysOnceAtItsVolumeAlsoAfterARestart) {
    open();
    file("tune.wav", flatWav(4410, 6400));
    Playlist* list = dynamic_cast<Playlist*>(sound.getPlaylist());
    ASSERT_TRUE(list);
    list->setTracks({"tune.wav"});
    const auto playTrack = [&] {
        TiXmlElement root("root");
        do {
            std::this_thread::yield();
            root.Clear();
            sound.dumpState(root);
        } while (std::string("true") == root.FirstChildElement()->Attribute("musicplaying"));
    };
    sound.setMusicVolume(64);
    sound.update();
    playTrack();
    EXPECT_EQ(levels(heard()), (Levels{{3200, 4410}}));
    logOf([&] { sound.init(); });
    run("soundrestart");
    list->setTracks({"tune.wav"});
    sound.update();
    playTrack();
    EXPECT_EQ(levels(heard()), (Levels{{3200, 4410}}));
}

// A sample that was loaded for one rate is loaded again for another.
TEST_F(SdlMixerTest, SamplesFollowTheDevicesRate) {
    open();
    logOf([&] { sound.setAudioParams(22050, 1, 1024); });
    SDL_LockAudio();
    EXPECT_EQ(sound.playId(2, 0), 3);
    SDL_UnlockAudio();
    playOut();
    const Levels got = levels(heard());
    ASSERT_EQ(got.size(), 1U);
    EXPECT_NEAR(got.at(-3000), 2205, 2);
}

TEST_F(SdlMixerTest, WithoutADeviceTheGameRunsInSilence) {
    setenv("SDL_AUDIODRIVER", "none", 1);
    const std::string log = logOf([this] { EXPECT_FALSE(sound.init()); });
    EXPECT_THAT(log, testing::StartsWith("Audio Format: 32784\nSound init Failed: "));
    define(sound, {"id='2' path='b.wav' channel='3' volume='100' positional='false'"});
    logOf([&] { sound.startPlaylist(""); });
    EXPECT_EQ(logOf([&] {
                  EXPECT_EQ(sound.playId(2, 0), -1);
                  EXPECT_EQ(sound.playName("a.wav", 0, 100), -1);
                  sound.playTestSound();
                  sound.updateListener({});
                  sound.update();
                  sound.stopChannel(3);
              }),
              "");
    EXPECT_EQ(sound.getVolume(), 0);
    EXPECT_THAT(run("volumeup 5; volume 40; setvolume 90"), testing::IsEmpty());
    EXPECT_EQ(value("volume"), "40");
    EXPECT_THAT(run("setvolume 129"), testing::ElementsAre("Volume must be between 0 and 128"));
    dynamic_cast<Playlist&>(*sound.getPlaylist()).setTracks({"a.wav", "b.wav"});
    EXPECT_THAT(run("plnext; plinfo"),
                testing::ElementsAre(testing::AnyOf("Mix_LoadMUS failed for: a.wav",
                                                    "Mix_PlayMusic failed for: a.wav"),
                                     "Now Playing: a.wav"));
    // A device that comes later is taken, and what was defined in the meantime is loaded once.
    setenv("SDL_AUDIODRIVER", "disk", 1);
    for (int time = 0; time < 2; ++time) {
        EXPECT_THAT(logOf([] { commands().execute("soundrestart"); }),
                    testing::StartsWith("Audio Format: 32784\n"));
        EXPECT_EQ(sound.samples().size(), 1U);
        EXPECT_EQ(sound.playId(2, 0), 3);
    }
    EXPECT_EQ(sound.playName("a.wav", 0, 100), 10);
}

}  // namespace
}  // namespace bc
