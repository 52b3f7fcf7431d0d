// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "SoundFixture.h"

#include "sound/HeadlessSound.h"

#include <gmock/gmock.h>

namespace bc {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A tenth of a second each: a.wav is id 1 (positional, half volume) and 2, b.wav is id 3 on
/// channel 4.
class SoundTest : public SoundFixture {
  protected:
    SoundTest() {
        file("a.wav", flatWav(4410));
        file("b.wav", flatWav(4410));
        logOf([this] { sound.init(); });
        define(sound, {"id='1' path='a.wav' channel='-1' volume='50' positional='true'",
                       "id='2' path='a.wav' channel='7' volume='100' positional='false'",
                       "id='3' path='b.wav' channel='4' volume='50' positional='TRUE'"});
    }
    ~SoundTest() override { sound.shutdown(); }

    HeadlessSound sound;
};

TEST_F(SoundTest, OneSampleAFileWhateverItsIds) {
    EXPECT_EQ(sound.samples().size(), 2U);
    EXPECT_EQ(sound.indexOfId(2), sound.indexOfId(1));
    EXPECT_EQ(sound.getSample("a.wav")->channel, -1);
    EXPECT_FALSE(sound.getSample("b.wav")->positional);
    EXPECT_EQ(sound.indexOfId(4), -1);
}

TEST_F(SoundTest, AMissingFileIsTriedAgain) {
    EXPECT_THAT(define(sound, {"id='9' path='late.wav'", "id='10'"}),
                testing::EndsWith("Couldn't find sound: late.wav\nCouldn't find sound: \n"));
    EXPECT_EQ(logOf([&] { EXPECT_EQ(sound.playName("../a.wav", 0, 100), -1); }),
              "Couldn't find sound: ../a.wav\n"
              "sound id -1 name ../a.wav at 0,0 channel -1 loops 0\n");
    file("late.wav", flatWav(10));
    EXPECT_EQ(logOf([&] { EXPECT_EQ(sound.playName("late.wav", 0, 100), 10); }),
              "sound id -1 name late.wav at 0,0 channel 10 loops 0\n");
    EXPECT_THAT(logOf([&] { sound.loadSoundDefs("nodefs.xml"); }),
                testing::EndsWith("Could not load sound defs file: nodefs.xml\n"));
}

// Each kind of request: where it plays, and what it tells the log.
TEST_F(SoundTest, Requests) {
    const Vector at(3.5F, -2);
    const auto request = [&](int expected, const char* line, auto play) {
        int got = -2;
        EXPECT_EQ(logOf([&] { got = play(); }), std::string("sound ") + line + "\n");
        EXPECT_EQ(got, expected) << line;
    };
    request(10, "id 1 name a.wav at 3.5,-2 channel 10 loops 0",
            [&] { return sound.playIdAt(1, at, 0); });
    request(11, "id 2 name a.wav at 0,0 channel 11 loops -1", [&] { return sound.playId(2, -1); });
    request(4, "id 3 name b.wav at 3.5,-2 channel 4 loops 2",
            [&] { return sound.playIdAt(3, at, 2); });
    request(2, "id 3 name b.wav at 3.5,-2 channel 2 loops 0",
            [&] { return sound.playIdOnChannelAt(3, 2, at, 0); });
    request(12, "id 3 name b.wav at 3.5,-2 channel 12 loops 0",
            [&] { return sound.playNameAt(at, "b.wav", 0, 100); });
    request(-1, "id 77 name  at 3.5,-2 channel -1 loops 0",
            [&] { return sound.playIdAt(77, at, 0); });
    request(-1, "id 1 name a.wav at 3.5,-2 channel -1 loops 0",
            [&] { return sound.playIdOnChannelAt(1, 32, at, 0); });
    request(-1, "id -1 name  at 0,0 channel -1 loops 0", [&] { return sound.playIndex(99, 0); });
    EXPECT_EQ(channel(sound, 10, "position"), "3.5,-2,0");
    EXPECT_EQ(channel(sound, 11, "looping"), "true");
    EXPECT_EQ(channel(sound, 2, "looping"), "false");
    vars().setVar("logsounds", "0");
    EXPECT_EQ(logOf([&] { sound.playId(1, 0); }), "");
}

TEST_F(SoundTest, NamesOnAChannelLoadAsPositional) {
    file("hum.wav", flatWav(10));
    logOf([&] { sound.playNameOnChannelAt(6, {}, "hum.wav", -1, 70); });
    const SoundSample* hum = sound.getSample("hum.wav");
    ASSERT_TRUE(hum);
    EXPECT_TRUE(hum->positional);
    EXPECT_EQ(hum->volume, 70);
    EXPECT_EQ(hum->channel, 6);
}

// The count of the last listener update decides, not what has started since.
TEST_F(SoundTest, TooManyAtOnceAreDropped) {
    vars().setVar("logsounds", "0");
    for (int playing = 1; playing <= 12; ++playing) {
        ASSERT_GE(sound.playIndex(0, -1), 0) << playing;
        const int at = sound.playIdOnChannelAt(1, 0, {}, 0);
        EXPECT_EQ(at, playing <= 6 ? 0 : -1) << playing;
        sound.stopChannel(at);
        sound.updateListener({});
        ASSERT_EQ(sound.playingCount(), playing);
        if (playing > 10)
            break;
    }
    EXPECT_EQ(sound.playIndex(0, 0), -1);
    // Only the free channels are taken, and when they are used up there is none.
    for (int i = 10; i < 32; ++i)
        sound.stopChannel(i);
    sound.updateListener({});
    for (int i = 10; i < 32; ++i)
        EXPECT_EQ(sound.playIndex(0, -1), i);
    EXPECT_EQ(sound.playIndex(0, -1), -1);
}

TEST_F(SoundTest, SoundsLastOnTheClock) {
    logOf([&] {
        sound.playIdOnChannelAt(1, 0, {}, 0);
        sound.playIdOnChannelAt(1, 1, {}, 2);
        sound.playIdOnChannelAt(1, 2, {}, -1);
    });
    const auto playing = [&](std::uint32_t ms) {
        advanceVirtualTicks(ms);
        sound.updateListener({});
        return sound.playingCount();
    };
    EXPECT_EQ(playing(99), 3);
    EXPECT_EQ(playing(1), 2);
    EXPECT_EQ(playing(199), 2);
    EXPECT_EQ(playing(1), 1);
    EXPECT_EQ(playing(1000000), 1);
    EXPECT_TRUE(sound.channelInfo(2).playing);
    sound.stopChannel(2);
    EXPECT_FALSE(sound.channelInfo(2).playing);
    EXPECT_EQ(playing(0), 0);
    sound.stopChannel(-1);
    sound.stopChannel(32);
}

TEST_F(SoundTest, DistanceFadesPositionalSoundsOnly) {
    file("full.wav", flatWav(10));
    define(sound, {"id='5' path='full.wav' channel='0' volume='100' positional='true'",
                   "id='6' path='loud.wav' volume='900' positional='true'"});
    file("loud.wav", flatWav(10));
    logOf([&] {
        sound.playIdAt(5, {100, 0}, -1);
        sound.playIdOnChannelAt(1, 1, {100, 0}, -1);
        sound.playIdOnChannelAt(3, 3, {100, 0}, -1);
    });
    struct Case {
        float x;
        const char* master;
        const char* full;
        const char* half;
        const char* plain;
    };
    for (const Case& c : std::initializer_list<Case>{
             {100, "128", "128", "64", "128"},
             {340, "128", "64", "32", "128"},
             {-140, "128", "64", "32", "128"},
             // 127 x 0.5 is cut to 63 before the percentage, 31.5 after it.
             {340, "127", "63", "31", "127"},
             {579, "128", "0", "0", "128"},
             {580, "128", "0", "0", "128"},
             {9000, "128", "0", "0", "128"},
             {100, "999", "128", "128", "128"},
             {100, "-7", "0", "0", "0"},
             {9000, "-7", "0", "0", "0"},
         }) {
        vars().setVar("volume", c.master);
        sound.updateListener({c.x, 0});
        EXPECT_EQ(channel(sound, 0, "volume"), c.full) << c.x << ' ' << c.master;
        EXPECT_EQ(channel(sound, 1, "volume"), c.half) << c.x << ' ' << c.master;
        EXPECT_EQ(channel(sound, 3, "volume"), c.plain) << c.x << ' ' << c.master;
    }
}

TEST_F(SoundTest, VolumeCommands) {
    const std::string complaint = "Volume must be between 0 and 128";
    struct Case {
        const char* command;
        const char* before;
        const char* after;
        bool complains;
    };
    for (const Case& c : std::initializer_list<Case>{
             {"setvolume 0", "100", "0", false},
             {"setvolume 128", "100", "128", false},
             {"setvolume 129", "100", "100", true},
             {"setvolume -1", "100", "100", true},
             {"setvolume", "100", "100", true},
             {"setvolume loud", "100", "0", false},
             {"volumeup 50", "100", "128", false},
             {"volumeup", "100", "101", false},
             {"volumeup 99999999999", "1", "128", false},
             {"volumeup -30", "20", "0", false},
             {"volumedown", "0", "0", false},
             {"volumedown 30", "100", "70", false},
         }) {
        vars().setVar("volume", c.before);
        EXPECT_THAT(run(c.command),
                    c.complains ? testing::Matcher<std::vector<std::string>>(ElementsAre(complaint))
                                : IsEmpty())
            << c.command;
        EXPECT_EQ(value("volume"), c.after) << c.command;
    }
    EXPECT_THAT(logOf([] { commands().execute("playsound b.wav"); }), HasSubstr("name b.wav at"));
    EXPECT_THAT(run("playsound no.wav"), ElementsAre("Couldn't find sound: no.wav"));
    EXPECT_THAT(run("soundrestart; soundchannels 3; soundrestart"),
                ElementsAre("Sound init Failed: No device plays these settings"));
    EXPECT_THAT(run("soundchannels 1; soundrestart"), IsEmpty());
    EXPECT_THAT(logOf([] { commands().execute("playsound"); }),
                HasSubstr("Couldn't find sound: data/sounds/test/test.ogg"));
}

TEST_F(SoundTest, WhatPlaysWithoutEndOutlastsTheDevice) {
    logOf([&] {
        sound.playIdOnChannelAt(1, -1, {100, 0}, -1);
        sound.playIdOnChannelAt(1, -1, {}, 5);
        sound.playId(3, -1);
        sound.playIdOnChannelAt(1, 8, {}, -1);
    });
    run("soundchannels 3; soundrestart");
    sound.stopChannel(8);
    run("soundchannels 1; soundrestart");
    sound.updateListener({340, 0});
    EXPECT_EQ(sound.playingCount(), 2);
    EXPECT_EQ(channel(sound, 10, "volume"), "32");
    EXPECT_TRUE(sound.channelInfo(4).playing);
    EXPECT_FALSE(sound.channelInfo(11).playing);
    EXPECT_FALSE(sound.channelInfo(8).playing);
}

TEST_F(SoundTest, SettingsThatDoNotOpenFallBack) {
    const std::string log = logOf([&] { sound.setAll(77, 5, 44100, 3, 2048); });
    EXPECT_EQ(log,
              "Audio Format: 32784\nSound init Failed: No device plays these settings\n"
              "Couldnt init sound with: Freq: 44100 : Channels: 3 : Buffser Size: 2048\n"
              "Falling back to last known safe: Freq44100 : Channels: 1 : Buffser Size: 2048\n"
              "Audio Format: 32784\n");
    EXPECT_TRUE(sound.isInitialised());
    EXPECT_EQ(value("volume"), "77");
    EXPECT_EQ(value("musicvolume"), "128");
    logOf([&] { sound.setAudioParams(22050, 2, 1024); });
    int volume = 0, music = 0, frequency = 0, channels = 0, buffer = 0;
    sound.getSettings(volume, music, frequency, channels, buffer);
    EXPECT_THAT((std::vector{volume, music, frequency, channels, buffer}),
                ElementsAre(77, 128, 22050, 2, 1024));
    EXPECT_EQ(value("soundfrequency"), "44100");
    // What was loaded still plays.
    logOf([&] { EXPECT_EQ(sound.playId(1, 0), 10); });
}

TEST_F(SoundTest, AfterShutdownNothingPlays) {
    sound.shutdown();
    EXPECT_EQ(logOf([&] { EXPECT_EQ(sound.playName("a.wav", 0, 100), -1); }), "");
    EXPECT_EQ(sound.getVolume(), 0);
    EXPECT_EQ(sound.getSample("a.wav"), nullptr);
    vars().setVar("volume", "5");
    sound.updateListener({});
    sound.update();
}

}  // namespace
}  // namespace bc
