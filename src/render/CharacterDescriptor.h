// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace bc {

/// One glyph of a font: where it lies on its page of 256 x 256 pixels and how far it moves the
/// pen. x is its left edge, y its top edge counted upwards from the bottom of the page.
struct CharacterDescriptor {
    int charcode = 0;
    /// File name of the page below data/fonts/.
    std::string image;
    /// The renderer's texture of the page; 0 until the font renderer fetched it.
    int textureId = 0;
    int x = 0;
    int y = 0;
    // Where the glyph's cell began before it was trimmed, and its size then; for font editors.
    int px = 0;
    int py = 0;
    int pwidth = 0;
    int pheight = 0;
    int width = 0;
    int height = 0;
    int left = 0;
    /// From the baseline up to the glyph's top edge.
    int top = 0;
    float xadvance = 0;
    float s = 0;
    float t = 0;
    float s2 = 0;
    float t2 = 0;
};

}  // namespace bc
