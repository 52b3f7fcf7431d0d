// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "Rasteriser.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_MODULE_H

#include <algorithm>
#include <cstddef>
#include <memory>
#include <stdexcept>

namespace bc::fontc {

namespace {

constexpr int codes = 256;

using Library = std::unique_ptr<FT_LibraryRec_, decltype(&FT_Done_FreeType)>;
using Face = std::unique_ptr<FT_FaceRec_, decltype(&FT_Done_Face)>;

bool isControl(int code) {
    return code < 32 || (code >= 127 && code < 160);
}

Glyph glyphOf(FT_Face face, int code) {
    Glyph glyph;
    glyph.code = code;
    const FT_UInt index = FT_Get_Char_Index(face, static_cast<FT_ULong>(code));
    if (isControl(code) || index == 0 ||
        FT_Load_Glyph(face, index, FT_LOAD_RENDER | FT_LOAD_TARGET_NORMAL) != 0)
        return glyph;
    const FT_GlyphSlot slot = face->glyph;
    const FT_Bitmap& bitmap = slot->bitmap;
    glyph.advance = static_cast<int>((slot->advance.x + 32) >> 6);
    if (bitmap.width == 0 || bitmap.rows == 0)
        return glyph;
    // A letter that reaches back to the left of the pen is moved up to it. One that leaves no
    // free column before the next pen gives up space on its left instead: the game never moves
    // the pen by less than a cell and one pixel, and figures should all be equally wide.
    const int excess = slot->bitmap_left + static_cast<int>(bitmap.width) - (glyph.advance - 1);
    glyph.left = std::max(slot->bitmap_left - std::max(excess, 0), 0);
    glyph.top = slot->bitmap_top;
    glyph.width = glyph.left + static_cast<int>(bitmap.width);
    glyph.height = static_cast<int>(bitmap.rows);
    glyph.coverage.assign(
        static_cast<std::size_t>(glyph.width) * static_cast<std::size_t>(glyph.height), 0);
    for (int y = 0; y < glyph.height; ++y) {
        const unsigned char* from = bitmap.buffer + static_cast<std::ptrdiff_t>(y) * bitmap.pitch;
        std::copy_n(from, bitmap.width, glyph.coverage.begin() + (y * glyph.width + glyph.left));
    }
    return glyph;
}

}  // namespace

std::vector<Glyph> rasterise(const std::string& outlines, int size) {
    FT_Library rawLibrary = nullptr;
    if (FT_Init_FreeType(&rawLibrary) != 0)
        throw std::runtime_error("the font library does not start");
    const Library library(rawLibrary, &FT_Done_FreeType);
    // Full hinting: stems on whole pixels in both directions are what makes small text crisp.
    FT_UInt interpreter = 35;
    FT_Property_Set(library.get(), "truetype", "interpreter-version", &interpreter);
    FT_Face rawFace = nullptr;
    if (FT_New_Face(library.get(), outlines.c_str(), 0, &rawFace) != 0)
        throw std::runtime_error(outlines + " is no font");
    const Face face(rawFace, &FT_Done_Face);
    if (FT_Set_Pixel_Sizes(face.get(), 0, static_cast<FT_UInt>(size)) != 0)
        throw std::runtime_error(outlines + " has no size " + std::to_string(size));
    std::vector<Glyph> glyphs;
    glyphs.reserve(codes);
    for (int code = 0; code < codes; ++code)
        glyphs.push_back(glyphOf(face.get(), code));
    return glyphs;
}

}  // namespace bc::fontc
