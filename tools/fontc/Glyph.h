// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

namespace bc::fontc {

/// One character as it is drawn: a cell that begins at the pen, so that the space a letter keeps
/// to its left is part of it (the game draws cells at the pen and knows no offsets).
struct Glyph {
    int code = 0;
    /// Pixels; 0 x 0 for what leaves no mark.
    int width = 0;
    int height = 0;
    /// From the baseline up to the cell's top edge.
    int top = 0;
    /// Where the letter itself begins.
    int left = 0;
    /// From pen to pen.
    int advance = 0;
    /// Coverage, 0 to 255, rows from the top.
    std::vector<std::uint8_t> coverage;

    // Filled in when the glyph is put on a page: the page, and the top left corner there.
    int page = 0;
    int column = 0;
    int row = 0;
};

}  // namespace bc::fontc
