// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The sounds and the music as the build renders them: nothing missing, nothing too loud, no clicks,
// all effects alike and the music below them.
#include "SoundFixture.h"

#include "sound/VirtualMixer.h"
#include "support/Places.h"

#include <SDL/SDL_mixer.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <set>

namespace bc {
namespace {

// Levels in dB below full scale.
constexpr double highestPeak = -3;
constexpr double effectLevel = -29.3;
constexpr double musicBelowEffects = 9;

double decibels(double amplitude) {
    return 20 * std::log10(std::max(amplitude, 1e-6));
}

/// The shipped data, decoded by the mixer at its own rate, both channels side by side.
class SoundDataTest : public SoundFixture {
  protected:
    SoundDataTest() {
        files::setFolders(test::gamePath(""), test::gamePath(""));
        setenv("SDL_AUDIODRIVER", "dummy", 1);
        vars().setVar("soundchannels", "2");
        logOf([this] { sound.init(); });
    }
    ~SoundDataTest() override { sound.shutdown(); }

    static std::vector<float> decode(const std::string& name) {
        const auto path = files::resolve(name);
        Mix_Chunk* chunk = path ? Mix_LoadWAV(path->c_str()) : nullptr;
        EXPECT_TRUE(chunk) << name;
        std::vector<float> samples;
        for (std::uint32_t i = 0; chunk && i + 1 < chunk->alen; i += 2)
            samples.push_back(static_cast<float>(static_cast<std::int16_t>(
                                  chunk->abuf[i] | chunk->abuf[i + 1] << 8)) /
                              32768);
        if (chunk)
            Mix_FreeChunk(chunk);
        return samples;
    }
    /// Every rendered file in a folder below data/sounds.
    static std::vector<std::string> in(const std::string& folder) {
        std::vector<std::string> names;
        for (const auto& entry :
             std::filesystem::directory_iterator(test::gamePath("") + "data/sounds/" + folder))
            names.push_back("data/sounds/" + folder + "/" + entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
    static double peak(const std::vector<float>& samples) {
        float most = 0;
        for (const float s : samples)
            most = std::max(most, std::abs(s));
        return decibels(most);
    }
    static double power(const float* from, const float* to) {
        double sum = 0;
        for (; from < to; ++from)
            sum += static_cast<double>(*from) * *from;
        return sum;
    }
    /// Of the loudest tenth of a second.
    static double loudness(const std::vector<float>& samples) {
        constexpr std::size_t window = 8820;
        constexpr std::size_t step = 220;
        double most = 0;
        for (std::size_t at = 0; at < samples.size(); at += step)
            most = std::max(
                most, power(&samples[at], samples.data() + std::min(at + window, samples.size())));
        return decibels(std::sqrt(most / window));
    }

    Sound sound;
};

TEST_F(SoundDataTest, EveryDefinitionLoads) {
    const std::string log = logOf([this] { sound.loadSoundDefs("data/sounds/sounds.xml"); });
    EXPECT_EQ(log.find("Couldn't"), std::string::npos) << log;
    std::set<int> indices;
    for (int id = 0; id <= 42; ++id) {
        const int index = sound.indexOfId(id);
        // Nothing in the game uses these two.
        ASSERT_EQ(index < 0, id == 31 || id == 35) << id;
        if (index < 0)
            continue;
        EXPECT_TRUE(indices.insert(index).second) << id << " sounds like another";
        const SoundSample& sample = *sound.samples()[static_cast<std::size_t>(index)];
        EXPECT_GE(sample.channel, -1) << id;
        EXPECT_LT(sample.channel, Sound::reservedChannels) << id;
        EXPECT_TRUE(sample.volume > 0 && sample.volume <= 100) << id;
    }
    // None is left over.
    EXPECT_EQ(in("effects").size(), indices.size());
    for (const char* name : {"gui/FluxWideDown.wav", "gui/MouseTick.wav", "gui/MenuSmoothClose.wav",
                             "gui/MouseSquare.wav", "gui/MousePulse.wav", "gui/SineHear.wav",
                             "events/Off3.wav", "events/On3.wav", "test/test.ogg"})
        EXPECT_GE(sound.loadSampleByName(std::string("data/sounds/") + name), 0) << name;
}

TEST_F(SoundDataTest, EffectsAreAlikeAndBeginAndEndInSilence) {
    for (const char* folder : {"effects", "gui", "events", "test"})
        for (const std::string& name : in(folder)) {
            const std::vector<float> samples = decode(name);
            ASSERT_GT(samples.size(), 2000U) << name;
            EXPECT_LT(samples.size(), 2U * 66150) << name;
            EXPECT_LE(peak(samples), highestPeak) << name;
            EXPECT_NEAR(loudness(samples), effectLevel, 1) << name;
            EXPECT_LE(std::abs(samples.front()), 0.001F) << name;
            EXPECT_LE(std::abs(samples.back()), 0.001F) << name;
        }
}

// What loops goes on at its seam as it does elsewhere: no step larger than the waves themselves.
TEST_F(SoundDataTest, LoopsHaveNoSeam) {
    std::vector<std::string> loops = in("ambient");
    loops.emplace_back("data/sounds/effects/lightning.wav");
    for (const std::string& name : loops) {
        const std::vector<float> samples = decode(name);
        ASSERT_GT(samples.size(), 44100U) << name;
        EXPECT_LE(peak(samples), highestPeak) << name;
        float steepest = 0;
        for (std::size_t i = 2; i < samples.size(); ++i)
            steepest = std::max(steepest, std::abs(samples[i] - samples[i - 2]));
        EXPECT_LE(std::abs(samples.front() - samples[samples.size() - 2]), steepest / 2) << name;
        EXPECT_LE(std::abs(samples.front()), 0.001F) << name;
    }
}

// Whichever ten start together, and in whatever phase: at each moment the ten highest of all
// effects together stay within the mixer's range, upwards and downwards.
TEST_F(SoundDataTest, TenEffectsAtOnceDoNotClip) {
    std::vector<std::vector<float>> effects;
    std::size_t longest = 0;
    for (const std::string& name : in("effects")) {
        effects.push_back(decode(name));
        longest = std::max(longest, effects.back().size());
    }
    double worst = 0;
    std::vector<float> now;
    for (std::size_t i = 0; i < longest; i += 2) {
        now.clear();
        for (const auto& effect : effects)
            now.push_back(i < effect.size() ? effect[i] : 0);
        std::sort(now.begin(), now.end());
        double low = 0;
        double high = 0;
        for (std::size_t k = 0; k < 10; ++k) {
            low += std::min(now[k], 0.0F);
            high += std::max(now[now.size() - 1 - k], 0.0F);
        }
        worst = std::max({worst, -low, high});
    }
    EXPECT_LT(decibels(worst), 0);
    EXPECT_GT(decibels(worst), -20) << "the effects can hardly be heard";
}

TEST_F(SoundDataTest, MusicIsLongQuietAndLoops) {
    VirtualMixer mixer;
    Playlist list(mixer);
    list.start("");
    ASSERT_EQ(list.tracks().size(), 5U);
    EXPECT_EQ(in("music").size(), 5U);
    for (const std::string& name : list.tracks()) {
        const std::vector<float> samples = decode(name);
        const double seconds = static_cast<double>(samples.size()) / 2 / 44100;
        ASSERT_GE(seconds, 90) << name;
        EXPECT_LE(peak(samples), highestPeak) << name;
        const double level =
            decibels(std::sqrt(power(samples.data(), samples.data() + samples.size()) /
                               static_cast<double>(samples.size())));
        EXPECT_NEAR(level, effectLevel - musicBelowEffects, 1) << name;
        for (const float end :
             {samples[0], samples[1], samples[samples.size() - 1], samples[samples.size() - 2]})
            EXPECT_LE(std::abs(end), 0.001F) << name;
        // No bar of silence on either side of the seam, and both channels used.
        constexpr std::size_t second = 88200;
        EXPECT_GT(power(samples.data(), samples.data() + 2 * second), 1e-6 * 4 * second) << name;
        EXPECT_GT(
            power(samples.data() + samples.size() - 4 * second, samples.data() + samples.size()),
            1e-6 * 4 * second)
            << name;
        double sides = 0;
        for (std::size_t i = 0; i + 1 < samples.size(); i += 2)
            sides += std::abs(samples[i] - samples[i + 1]);
        EXPECT_GT(sides / static_cast<double>(samples.size()), 1e-4) << name;
    }
}

}  // namespace
}  // namespace bc
