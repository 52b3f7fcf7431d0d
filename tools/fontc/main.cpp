// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// fontc OUTLINES SIZE NAME FOLDER STEM: turns outlines into an image font of the game,
// FOLDER/STEM.xml and its pages FOLDER/STEM_0.png, FOLDER/STEM_1.png ...
#include "GlyphPages.h"
#include "Rasteriser.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <stdexcept>
#include <string>

namespace {

using bc::fontc::Glyph;
using bc::fontc::pageSize;

/// The game moves the pen one pixel farther than a glyph asks for.
constexpr int gameSpacing = 1;
constexpr int largestSize = 128;

std::string pageName(const std::string& stem, int page) {
    return stem + '_' + std::to_string(page) + ".png";
}

void writeGlyph(std::ostream& out, const Glyph& g, const std::string& stem) {
    // Rows count from the top of the picture, the game's from the bottom of the page.
    const int y = pageSize - g.row;
    const int advance = g.advance > gameSpacing ? g.advance - gameSpacing : 0;
    const auto scaled = [](int pixels) { return static_cast<double>(pixels) / pageSize; };
    out << "    <descriptor charcode=\"" << g.code << '"';
    if (g.width > 0) {
        out << " image=\"" << pageName(stem, g.page) << "\" x=\"" << g.column << "\" y=\"" << y
            << "\" px=\"" << g.column << "\" py=\"" << g.row << "\" pwidth=\"" << g.width
            << "\" pheight=\"" << g.height << "\" width=\"" << g.width << "\" height=\"" << g.height
            << "\" left=\"" << g.left << "\" top=\"" << g.top << "\" s=\"" << scaled(g.column)
            << "\" t=\"" << scaled(y) << "\" s2=\"" << scaled(g.column + g.width) << "\" t2=\""
            << scaled(y - g.height) << '"';
    }
    out << " xadvance=\"" << advance << "\"/>\n";
}

void writeFont(const std::string& path, const std::vector<Glyph>& glyphs, int pages,
               const std::string& name, int size, const std::string& stem) {
    std::ofstream out(path, std::ios::trunc);
    out << "<?xml version=\"1.0\"?>\n<font size=\"" << size << "\" name=\"" << name << "\">\n"
        << "  <descriptors>\n";
    for (const Glyph& glyph : glyphs)
        writeGlyph(out, glyph, stem);
    out << "  </descriptors>\n  <imageindex>\n";
    for (int page = 0; page < pages; ++page)
        out << "    <image filename=\"" << pageName(stem, page) << "\"/>\n";
    out << "  </imageindex>\n</font>\n";
    out.close();
    if (!out)
        throw std::runtime_error(path + " cannot be written");
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 6) {
        std::fprintf(stderr, "usage: fontc OUTLINES SIZE NAME FOLDER STEM\n");
        return 2;
    }
    const std::string folder = std::string(argv[4]) + '/';
    const std::string stem = argv[5];
    const int size = std::atoi(argv[2]);
    if (size < 1 || size > largestSize) {
        std::fprintf(stderr, "fontc: the size is a number of pixels from 1 to %d\n", largestSize);
        return 2;
    }
    try {
        std::vector<Glyph> glyphs = bc::fontc::rasterise(argv[1], size);
        const int pages = bc::fontc::arrange(glyphs);
        for (int page = 0; page < pages; ++page)
            bc::fontc::writePage(folder + pageName(stem, page), glyphs, page);
        writeFont(folder + stem + ".xml", glyphs, pages, argv[3], size, stem);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "fontc: %s\n", error.what());
        return 1;
    }
    return 0;
}
