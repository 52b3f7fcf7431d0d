// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace bc {

/// What the headers of a sound file say. Nothing is decoded.
struct AudioFileInfo {
    int rate = 0;     ///< frames a second
    int outputs = 0;  ///< interleaved channels in the file
    std::uint64_t frames = 0;

    /// Playing time, rounded up.
    [[nodiscard]] std::uint32_t lengthMs() const;
};

/// Sound files larger than this, or longer than this, are not opened: decoded they would fill the
/// memory.
inline constexpr std::uint64_t maxAudioFileBytes = 64U << 20;
inline constexpr std::uint64_t maxAudioFileSeconds = 900;

/// Looks through a WAV (PCM), AIFF, VOC, FLAC or Ogg Vorbis file. Nothing when the file cannot be
/// read, is of another kind, is damaged where it matters, or names a rate that the sample rate
/// converter behind the mixer cannot take (it runs past its filter table far outside 4 to 192 kHz).
[[nodiscard]] std::optional<AudioFileInfo> readAudioFileInfo(const std::string& diskPath);

}  // namespace bc
