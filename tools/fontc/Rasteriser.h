// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Glyph.h"

#include <string>
#include <vector>

namespace bc::fontc {

/// The 256 characters of Latin-1 in code order, at a height of size pixels. Control characters
/// and what the outlines lack are empty. Throws std::runtime_error when the file is no font.
std::vector<Glyph> rasterise(const std::string& outlines, int size);

}  // namespace bc::fontc
