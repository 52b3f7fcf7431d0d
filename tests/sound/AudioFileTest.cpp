// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "SoundFixture.h"

#include "sound/AudioFile.h"

namespace bc {
namespace {

std::string big(std::uint64_t value, int count) {
    const std::string bytes = little(value, count);
    return {bytes.rbegin(), bytes.rend()};
}

// Rates as the exponent and the mantissa of AIFF's long float.
std::string aiff(std::uint64_t exponent, std::uint64_t mantissa) {
    return "FORM" + big(46 + 8, 4) + "AIFFCOMM" + big(18, 4) + big(1, 2) + big(441, 4) +
           big(16, 2) + big(exponent, 2) + big(mantissa, 8) + "SSND" + big(8, 4) + big(0, 8);
}

std::string voc(const std::string& block) {
    return "Creative Voice File\x1a" + little(26, 2) + little(0x010a, 2) + little(0x1129, 2) +
           block + little(0, 1);
}

std::string flac(std::uint64_t rate, std::uint64_t frames) {
    return "fLaC" + big(34, 4) + std::string(10, '\0') +
           big(rate << 44 | 1ULL << 41 | 15ULL << 36 | frames, 8) + std::string(16, '\0');
}

std::string ogg(std::uint32_t rate, std::uint64_t frames) {
    const std::string page = std::string("OggS\0\4", 6);
    return page + std::string(20, '\0') + "\1\x1e" + "\1vorbis" + little(0, 4) + "\2" +
           little(rate, 4) + std::string(14, '\0') + page + little(frames, 8) +
           std::string(13, '\0');
}

class AudioFileTest : public SoundFixture {
  protected:
    std::optional<AudioFileInfo> read(const std::string& contents) {
        file("x", contents);
        return readAudioFileInfo(data() + "/x");
    }
};

TEST_F(AudioFileTest, MeasuresEveryKind) {
    const std::string samples(8820, '\1');
    for (const auto& [contents, ms] : {
             std::pair(wav(samples), 100U),
             {wav(samples, 44100, 2), 50U},
             {wav(samples, 8820, 1, 8), 1000U},
             {wav(std::string(2, '\0'), 44100), 1U},
             {aiff(16383 + 15, 44100ULL << 48), 10U},
             {voc("\1" + little(1002, 3) + little(256 - 100, 1) + std::string(1001, '\0')), 100U},
             {voc("\x9" + little(12 + 88, 3) + little(8000, 4) + "\x10\1" + std::string(94, '\0')),
              6U},
             {flac(44100, 44100), 1000U},
             {ogg(48000, 4800), 100U},
         }) {
        const auto info = read(contents);
        ASSERT_TRUE(info) << contents.substr(0, 4);
        EXPECT_EQ(info->lengthMs(), ms) << contents.substr(0, 4);
    }
}

TEST_F(AudioFileTest, RefusesWhatADecoderShouldNotSee) {
    const std::string samples(400, '\0');
    const std::string good = wav(samples);
    std::string longData = good;
    longData.replace(40, 4, little(0xfffffff0U, 4));
    std::string longChunk = good;
    longChunk.replace(16, 4, little(0xffffffffU, 4));
    for (const std::string& contents : {
             std::string(),
             std::string("nothing known, whatever follows"),
             wav(samples, 0),
             wav(samples, 1),
             wav(samples, 4000000000U),
             wav(samples, 44100, 0),
             wav(samples, 44100, 3),
             wav(samples, 44100, 1, 24),
             wav(samples, 44100, 1, 16, 2),
             wav(""),
             longData,
             longChunk,
             aiff(16383, 1ULL << 63),
             aiff(0x7fff, ~0ULL),
             voc("\x9" + little(12 + 88, 3) + little(1, 4) + "\x10\1" + std::string(94, '\0')),
             voc("\x9" + little(12 + 88, 3) + little(8000, 4) + std::string(96, '\0')),
             flac(1, 44100),
             flac(44100, 0),
             flac(44100, 44100ULL * 901),
             ogg(0, 4800),
             ogg(48000, ~0ULL),
         })
        EXPECT_FALSE(read(contents)) << testing::PrintToString(contents.substr(0, 60));
    EXPECT_FALSE(readAudioFileInfo(data()));
    EXPECT_FALSE(readAudioFileInfo(data() + "/none"));
    for (std::size_t length = 0; length < good.size(); length += 9)
        EXPECT_FALSE(read(good.substr(0, length))) << length;
}

}  // namespace
}  // namespace bc
