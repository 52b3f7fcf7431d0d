// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "SoundFixture.h"

#include "core/Random.h"
#include "sound/VirtualMixer.h"

#include <gmock/gmock.h>

namespace bc {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Tracks of a tenth of a second on a mixer without a device.
class PlaylistTest : public SoundFixture {
  protected:
    PlaylistTest() {
        for (const char* name : {"a.ogg", "b.ogg", "c.ogg"})
            file(name, flatWav(4410));
        EXPECT_TRUE(mixer.open(44100, 1, 2048));
    }
    /// What a step prints; the log must say the same.
    template <class Step>
    std::vector<std::string> printed(Step step) {
        lines.clear();
        const std::string log = logOf(step);
        std::string joined;
        for (const std::string& line : lines)
            joined += line + "\n";
        EXPECT_EQ(log, joined);
        return lines;
    }

    VirtualMixer mixer;
    Playlist list{mixer};
};

TEST_F(PlaylistTest, WrapsBothWays) {
    list.setTracks({"a.ogg", "b.ogg", "c.ogg"});
    for (const char* track : {"a.ogg", "b.ogg", "c.ogg", "a.ogg"}) {
        list.next();
        EXPECT_EQ(list.currentTrack(), track);
        EXPECT_TRUE(mixer.isMusicPlaying());
    }
    list.previous();
    EXPECT_EQ(list.currentTrack(), "c.ogg");
    EXPECT_THAT((lines.clear(), list.printInfo(), lines), ElementsAre("Now Playing: c.ogg"));
    advanceVirtualTicks(99);
    EXPECT_TRUE(mixer.isMusicPlaying());
    advanceVirtualTicks(1);
    EXPECT_FALSE(mixer.isMusicPlaying());
}

TEST_F(PlaylistTest, WhatDoesNotPlayIsSaidAndLeavesSilence) {
    file("text.ogg", "no music at all, whatever its name says");
    list.setTracks({"a.ogg", "song.MP3", "gone.ogg", "text.ogg"});
    const char* const messages[] = {nullptr, "MP3s aren't supported: song.MP3",
                                    "Mix_LoadMUS failed for: gone.ogg",
                                    "Mix_LoadMUS failed for: text.ogg"};
    for (int i = 1; i < 4; ++i) {
        list.play(0);
        ASSERT_TRUE(mixer.isMusicPlaying());
        EXPECT_THAT(printed([&] { list.play(i); }), ElementsAre(messages[i]));
        EXPECT_FALSE(mixer.isMusicPlaying());
    }
    list.previous();
    list.previous();
    EXPECT_FALSE(list.isUnplayable());
    mixer.close();
    EXPECT_THAT(printed([&] { list.play(0); }), ElementsAre("Mix_PlayMusic failed for: a.ogg"));
    EXPECT_TRUE(list.isUnplayable());
    list.retry();
    EXPECT_FALSE(list.isUnplayable());
}

TEST_F(PlaylistTest, AnEmptyListStaysQuiet) {
    list.setTracks({"a.ogg"});
    list.next();
    list.stop();
    EXPECT_FALSE(mixer.isMusicPlaying());
    EXPECT_THAT(printed([&] {
                    list.next();
                    list.previous();
                    list.play(3);
                    list.printInfo();
                }),
                IsEmpty());
}

// The draw is one number of the game's generator, so that a recorded run hears the same.
TEST_F(PlaylistTest, TheFirstTrackIsDrawn) {
    for (std::uint32_t seed = 1; seed < 9; ++seed) {
        seedRandom(seed);
        const int expected = randomInt() % 5;
        const std::uint32_t after = randomState();
        seedRandom(seed);
        list.start("whatever");
        EXPECT_EQ(randomState(), after);
        ASSERT_EQ(list.tracks().size(), 5U);
        logOf([&] { list.next(); });
        EXPECT_EQ(list.currentIndex(), expected);
    }
}

}  // namespace
}  // namespace bc
