// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "sound/AudioFile.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <limits>
#include <string_view>

namespace bc {

namespace {

// Frames a second. SDL's sample rate converter reads past its filter table far outside this range.
constexpr int minRate = 4000;
constexpr int maxRate = 192000;

/// Reads bytes anywhere in a file. A read past its end returns zeros and makes ok() false.
class Bytes {
  public:
    explicit Bytes(const std::string& path) : in_(path, std::ios::binary | std::ios::ate) {
        const std::streamoff end = in_ ? static_cast<std::streamoff>(in_.tellg()) : -1;
        // A folder can be opened like a file, but its length is the largest number.
        size_ = end < 0 || end == std::numeric_limits<std::streamoff>::max()
                    ? 0
                    : static_cast<std::uint64_t>(end);
    }
    [[nodiscard]] std::uint64_t size() const { return size_; }
    [[nodiscard]] bool ok() const { return ok_; }
    [[nodiscard]] std::string text(std::uint64_t at, std::size_t count) {
        std::string out(count, '\0');
        if (at > size_ || count > size_ - at) {
            ok_ = false;
            return out;
        }
        in_.clear();
        in_.seekg(static_cast<std::streamoff>(at));
        if (!in_.read(out.data(), static_cast<std::streamsize>(count)))
            ok_ = false;
        return out;
    }
    [[nodiscard]] std::uint64_t little(std::uint64_t at, std::size_t count) {
        const std::string bytes = text(at, count);
        std::uint64_t value = 0;
        for (std::size_t i = count; i-- > 0;)
            value = value << 8 | static_cast<unsigned char>(bytes[i]);
        return value;
    }
    [[nodiscard]] std::uint64_t big(std::uint64_t at, std::size_t count) {
        std::uint64_t value = 0;
        for (const char byte : text(at, count))
            value = value << 8 | static_cast<unsigned char>(byte);
        return value;
    }

  private:
    std::ifstream in_;
    std::uint64_t size_ = 0;
    bool ok_ = true;
};

AudioFileInfo makeInfo(std::uint64_t rate, std::uint64_t outputs, std::uint64_t frames) {
    constexpr std::uint64_t big = 1U << 30;
    return {static_cast<int>(std::min(rate, big)), static_cast<int>(std::min(outputs, big)),
            frames};
}

std::optional<AudioFileInfo> readWav(Bytes& in) {
    if (in.text(8, 4) != "WAVE")
        return std::nullopt;
    AudioFileInfo info;
    std::uint64_t frameBytes = 0;
    std::uint64_t length = 0;
    for (std::uint64_t at = 12; in.ok(); at += 8 + length) {
        const std::string tag = in.text(at, 4);
        length = in.little(at + 4, 4);
        if (length > in.size() || at + 8 + length > in.size())
            return std::nullopt;
        if (tag == "fmt " && length >= 16) {
            const std::uint64_t bits = in.little(at + 22, 2);
            if (in.little(at + 8, 2) != 1 || (bits != 8 && bits != 16))
                return std::nullopt;
            info = makeInfo(in.little(at + 12, 4), in.little(at + 10, 2), 0);
            frameBytes = static_cast<std::uint64_t>(info.outputs) * bits / 8;
        } else if (tag == "data") {
            if (frameBytes == 0)
                return std::nullopt;
            info.frames = length / frameBytes;
            return info;
        }
    }
    return std::nullopt;
}

std::optional<AudioFileInfo> readAiff(Bytes& in) {
    if (in.text(8, 4) != "AIFF")
        return std::nullopt;
    std::optional<AudioFileInfo> info;
    bool hasSamples = false;
    std::uint64_t length = 0;
    for (std::uint64_t at = 12; at + 8 <= in.size(); at += 8 + length + length % 2) {
        const std::string tag = in.text(at, 4);
        length = in.big(at + 4, 4);
        if (length > in.size() || at + 8 + length > in.size())
            return std::nullopt;
        if (tag == "COMM" && length >= 18) {
            const std::uint64_t bits = in.big(at + 14, 2);
            if (bits != 8 && bits != 16)
                return std::nullopt;
            // The rate is an 80-bit float: a sign, 15 bits of exponent and 64 bits of mantissa.
            const int exponent = static_cast<int>(in.big(at + 16, 2) & 0x7fffU) - 16383;
            const double mantissa = static_cast<double>(in.big(at + 18, 8));
            const double rate = std::ldexp(mantissa, exponent - 63);
            if (!(rate >= minRate && rate <= maxRate))
                return std::nullopt;
            info =
                makeInfo(static_cast<std::uint64_t>(rate), in.big(at + 8, 2), in.big(at + 10, 4));
        } else if (tag == "SSND") {
            hasSamples = true;
        }
    }
    return hasSamples ? info : std::nullopt;
}

std::optional<AudioFileInfo> readVoc(Bytes& in) {
    AudioFileInfo info;
    std::uint64_t length = 0;
    for (std::uint64_t at = in.little(20, 2); in.ok(); at += 4 + length) {
        const std::uint64_t type = in.little(at, 1);
        if (type == 0 || at + 4 > in.size())
            break;
        length = in.little(at + 1, 3);
        if (at + 4 + length > in.size())
            return std::nullopt;
        if (type == 1 && length > 2) {
            info = makeInfo(1000000U / (256U - in.little(at + 4, 1)), 1, info.frames + length - 2);
        } else if (type == 9 && length > 12) {
            const std::uint64_t outputs = in.little(at + 9, 1);
            const std::uint64_t bits = in.little(at + 8, 1);
            if (outputs == 0 || (bits != 8 && bits != 16))
                return std::nullopt;
            info = makeInfo(in.little(at + 4, 4), outputs,
                            info.frames + (length - 12) * 8 / (bits * outputs));
        }
    }
    return info;
}

std::optional<AudioFileInfo> readFlac(Bytes& in) {
    // The first block must be the stream information. From byte 18 on it has 20 bits of rate, 3 of
    // the number of channels minus one, 5 of the sample size and 36 of the number of frames.
    if ((in.big(4, 1) & 0x7fU) != 0)
        return std::nullopt;
    const std::uint64_t packed = in.big(18, 8);
    return makeInfo(packed >> 44, (packed >> 41 & 7U) + 1, packed & 0xfffffffffU);
}

std::optional<AudioFileInfo> readOgg(Bytes& in) {
    const std::uint64_t start = 27 + in.little(26, 1);
    if (in.text(start, 7) != std::string_view("\1vorbis", 7))
        return std::nullopt;
    // Each page has the number of frames up to its end, so the last page has the length of the
    // file. A page has at most 65307 bytes.
    const std::size_t tailBytes =
        static_cast<std::size_t>(std::min<std::uint64_t>(in.size(), 65307U));
    const std::uint64_t tailStart = in.size() - tailBytes;
    const std::size_t page = in.text(tailStart, tailBytes).rfind("OggS");
    if (page == std::string::npos)
        return std::nullopt;
    return makeInfo(in.little(start + 12, 4), in.little(start + 11, 1),
                    in.little(tailStart + page + 6, 8));
}

}  // namespace

std::uint32_t AudioFileInfo::lengthMs() const {
    const auto perSecond = static_cast<std::uint64_t>(rate);
    return static_cast<std::uint32_t>((frames * 1000 + perSecond - 1) / perSecond);
}

std::optional<AudioFileInfo> readAudioFileInfo(const std::string& diskPath) {
    Bytes in(diskPath);
    if (in.size() < 16 || in.size() > maxAudioFileBytes)
        return std::nullopt;
    const std::string magic = in.text(0, 4);
    std::optional<AudioFileInfo> info;
    if (magic == "RIFF")
        info = readWav(in);
    else if (magic == "FORM")
        info = readAiff(in);
    else if (magic == "Crea")
        info = readVoc(in);
    else if (magic == "fLaC")
        info = readFlac(in);
    else if (magic == "OggS")
        info = readOgg(in);
    if (!info || !in.ok() || info->rate < minRate || info->rate > maxRate || info->outputs < 1 ||
        info->outputs > 2 || info->frames == 0 ||
        info->frames / static_cast<std::uint64_t>(info->rate) > maxAudioFileSeconds)
        return std::nullopt;
    return info;
}

}  // namespace bc
