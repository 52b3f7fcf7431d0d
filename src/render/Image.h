// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
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

}  // namespace bc
