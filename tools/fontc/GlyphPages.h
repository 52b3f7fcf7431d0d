// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Glyph.h"

#include <string>
#include <vector>

namespace bc::fontc {

/// The game takes pages to be of this size.
constexpr int pageSize = 256;

/// Gives every glyph with a mark its place, in rows, with a gap to its neighbours. Returns how
/// many pages that takes. Throws std::runtime_error for a glyph larger than a page.
int arrange(std::vector<Glyph>& glyphs);

/// Writes one page as a PNG: white, the coverage as alpha. Throws std::runtime_error when the
/// file cannot be written.
void writePage(const std::string& path, const std::vector<Glyph>& glyphs, int page);

}  // namespace bc::fontc
