// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace bc {

/// What the headers of a sound file say.
struct AudioFileInfo {
    int rate = 0;     ///< frames a second
    int outputs = 0;  ///< samples in a frame: 1 for mono, 2 for stereo
    std::uint64_t frames = 0;

    /// The playing time in milliseconds, rounded up.
    [[nodiscard]] std::uint32_t lengthMs() const;
};

/// Limits for sound files in bytes and in seconds. A longer file, once decoded, could take all
/// memory.
inline constexpr std::uint64_t maxAudioFileBytes = 64U << 20;
inline constexpr std::uint64_t maxAudioFileSeconds = 900;

/// Reads the headers of a WAV (PCM), AIFF, VOC, FLAC or Ogg Vorbis file without decoding it.
/// Nothing when the file cannot be read, has another format, exceeds the limits above, is damaged
/// in the parts that are read, or has a rate outside 4 to 192 kHz, no frames or more than two
/// channels.
[[nodiscard]] std::optional<AudioFileInfo> readAudioFileInfo(const std::string& diskPath);

}  // namespace bc
