// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "GlyphPages.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <png.h>
#include <stdexcept>

namespace bc::fontc {

namespace {

/// Pixels between glyphs, so that filtering at an edge never shows a neighbour.
constexpr int gap = 2;

}  // namespace

int arrange(std::vector<Glyph>& glyphs) {
    int page = 0;
    int column = gap;
    int row = gap;
    int rowHeight = 0;
    for (Glyph& glyph : glyphs) {
        if (glyph.width == 0)
            continue;
        if (glyph.width > pageSize - 2 * gap || glyph.height > pageSize - 2 * gap)
            throw std::runtime_error("character " + std::to_string(glyph.code) +
                                     " is larger than a page");
        if (column + glyph.width + gap > pageSize) {
            column = gap;
            row += rowHeight + gap;
            rowHeight = 0;
        }
        if (row + glyph.height + gap > pageSize) {
            ++page;
            column = row = gap;
            rowHeight = 0;
        }
        glyph.page = page;
        glyph.column = column;
        glyph.row = row;
        column += glyph.width + gap;
        rowHeight = std::max(rowHeight, glyph.height);
    }
    return page + 1;
}

void writePage(const std::string& path, const std::vector<Glyph>& glyphs, int page) {
    constexpr std::size_t side = pageSize;
    std::vector<std::uint8_t> pixels(side * side * 4, 255);
    for (std::size_t i = 3; i < pixels.size(); i += 4)
        pixels[i] = 0;
    for (const Glyph& glyph : glyphs) {
        if (glyph.page != page)
            continue;
        std::size_t from = 0;
        for (int y = glyph.row; y < glyph.row + glyph.height; ++y)
            for (int x = glyph.column; x < glyph.column + glyph.width; ++x) {
                const std::size_t at =
                    static_cast<std::size_t>(y) * side + static_cast<std::size_t>(x);
                pixels[at * 4 + 3] = glyph.coverage[from++];
            }
    }
    png_image image;
    std::memset(&image, 0, sizeof image);
    image.version = PNG_IMAGE_VERSION;
    image.width = pageSize;
    image.height = pageSize;
    image.format = PNG_FORMAT_RGBA;
    if (png_image_write_to_file(&image, path.c_str(), 0, pixels.data(), 0, nullptr) == 0)
        throw std::runtime_error(path + ": " + image.message);
}

}  // namespace bc::fontc
