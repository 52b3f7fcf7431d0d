// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace bc {

/// A decoded picture.
struct Image {
    int width = 0;
    int height = 0;
    /// 24 (red, green, blue) or 32 (with alpha), a byte a channel.
    int bitsPerPixel = 0;
    /// Rows from the bottom up, without gaps.
    std::vector<std::uint8_t> pixels;
};

/// Reads an image file of the user or the data folder. Nothing when it is missing, damaged, too
/// large or not a colour image of 24 or 32 bits.
[[nodiscard]] std::optional<Image> loadImage(const std::string& name);

}  // namespace bc
