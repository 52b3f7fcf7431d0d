// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace bc {

enum class ImageKind { png, tga };

/// What the head of an image file says of it.
struct ImageFacts {
    ImageKind kind = ImageKind::png;
    int width = 0;
    int height = 0;
    /// As stored: 24 and 32 are colour images of a byte a channel, everything else is not.
    int bitsPerPixel = 0;
};

/// Longest side, and most pixels in all, of an image that is decoded.
constexpr int maxImageSide = 8192;
constexpr int maxImagePixels = 1 << 25;

/// Walks through a PNG or TGA file without decoding it. Nothing when the file is damaged, lies
/// about its size, is beyond the limits or is of another kind: the decoder must not see it, since
/// damaged files can make it run for ever or read beyond their end.
[[nodiscard]] std::optional<ImageFacts> inspectImage(std::string_view bytes);

}  // namespace bc
