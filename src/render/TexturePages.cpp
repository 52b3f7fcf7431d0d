// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/TexturePages.h"

#include <GL/gl.h>

#include <algorithm>
#include <cstdint>

namespace bc {

namespace {

constexpr int pageSide = 2048;
constexpr std::size_t maxPages = 4;
constexpr int largestSide = 256;
/// Halvings of a page; a smallest image of 16 pixels is one pixel in the last.
constexpr int halvings = 4;
constexpr int smallestSide = 1 << halvings;
/// One pixel of border in the smallest copy.
constexpr int border = 1 << halvings;
/// Far above every id of an image.
constexpr int firstPageName = 0x40000000;

bool isPagedSide(int side) {
    return side >= smallestSide && side <= largestSide && (side & (side - 1)) == 0;
}

/// Four bytes a pixel, rows without gaps.
struct Pixels {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> bytes;

    Pixels(int w, int h)
        : width(w),
          height(h),
          bytes(static_cast<std::size_t>(w) * static_cast<std::size_t>(h) * 4) {}
    [[nodiscard]] std::uint8_t* at(int x, int y) {
        return &bytes[static_cast<std::size_t>(y * width + x) * 4];
    }
    [[nodiscard]] const std::uint8_t* at(int x, int y) const {
        return &bytes[static_cast<std::size_t>(y * width + x) * 4];
    }
};

Pixels withAlpha(const Image& image) {
    Pixels out(image.width, image.height);
    const std::size_t channels = static_cast<std::size_t>(image.bitsPerPixel / 8);
    for (std::size_t i = 0; i < out.bytes.size() / 4; ++i) {
        std::copy_n(&image.pixels[i * channels], 3, &out.bytes[i * 4]);
        out.bytes[i * 4 + 3] = channels == 4 ? image.pixels[i * channels + 3] : 255;
    }
    return out;
}

Pixels halved(const Pixels& image) {
    Pixels out(image.width / 2, image.height / 2);
    for (int y = 0; y < out.height; ++y)
        for (int x = 0; x < out.width; ++x)
            for (int channel = 0; channel < 4; ++channel) {
                const int sum =
                    image.at(x * 2, y * 2)[channel] + image.at(x * 2 + 1, y * 2)[channel] +
                    image.at(x * 2, y * 2 + 1)[channel] + image.at(x * 2 + 1, y * 2 + 1)[channel];
                out.at(x, y)[channel] = static_cast<std::uint8_t>((sum + 2) / 4);
            }
    return out;
}

/// What lies at a place that may be outside of a side of that length.
int inside(int place, int length, bool clamp) {
    if (clamp)
        return std::clamp(place, 0, length - 1);
    const int rest = place % length;
    return rest < 0 ? rest + length : rest;
}

Pixels bordered(const Pixels& image, int width, bool clamp) {
    Pixels out(image.width + 2 * width, image.height + 2 * width);
    for (int y = 0; y < out.height; ++y)
        for (int x = 0; x < out.width; ++x)
            std::copy_n(image.at(inside(x - width, image.width, clamp),
                                 inside(y - width, image.height, clamp)),
                        4, out.at(x, y));
    return out;
}

GLuint pageName(std::size_t page) {
    return static_cast<GLuint>(firstPageName) + static_cast<GLuint>(page);
}

}  // namespace

std::optional<TexturePlace> TexturePages::add(const Image& image, bool clamp) {
    if (!isPagedSide(image.width) || !isPagedSide(image.height))
        return std::nullopt;
    const std::optional<Cell> cell = findRoom(image.width + 2 * border, image.height + 2 * border);
    if (!cell)
        return std::nullopt;
    glBindTexture(GL_TEXTURE_2D, pageName(cell->page));
    Pixels level = withAlpha(image);
    for (int halving = 0; halving <= halvings; ++halving) {
        if (halving > 0)
            level = halved(level);
        const Pixels whole = bordered(level, border >> halving, clamp);
        glTexSubImage2D(GL_TEXTURE_2D, halving, cell->x >> halving, cell->y >> halving, whole.width,
                        whole.height, GL_RGBA, GL_UNSIGNED_BYTE, whole.bytes.data());
    }
    constexpr auto side = static_cast<float>(pageSide);
    return TexturePlace{
        static_cast<int>(pageName(cell->page)), static_cast<float>(image.width) / side,
        static_cast<float>(image.height) / side, static_cast<float>(cell->x + border) / side,
        static_cast<float>(cell->y + border) / side};
}

void TexturePages::remove(const TexturePlace& place) {
    constexpr auto side = static_cast<float>(pageSide);
    const auto page = static_cast<std::size_t>(place.texture - firstPageName);
    const int x = static_cast<int>(place.offsetU * side) - border;
    const int y = static_cast<int>(place.offsetV * side) - border;
    for (Cell& cell : cells_)
        if (cell.page == page && cell.x == x && cell.y == y)
            cell.used = false;
    const bool empty =
        std::none_of(cells_.begin(), cells_.end(), [](const Cell& cell) { return cell.used; });
    if (!empty)
        return;
    // Nothing is left to keep the present division for.
    cells_.clear();
    shelves_.clear();
    std::fill(pageTops_.begin(), pageTops_.end(), 0);
}

void TexturePages::removeAll() {
    for (std::size_t page = 0; page < pageTops_.size(); ++page) {
        const GLuint name = pageName(page);
        glDeleteTextures(1, &name);
    }
    clear();
}

void TexturePages::clear() {
    cells_.clear();
    shelves_.clear();
    pageTops_.clear();
}

std::optional<TexturePages::Cell> TexturePages::findRoom(int width, int height) {
    for (Cell& cell : cells_)
        if (!cell.used && cell.width == width && cell.height == height) {
            cell.used = true;
            return cell;
        }
    Shelf* shelf = openShelf(width, height);
    if (shelf == nullptr)
        return std::nullopt;
    cells_.push_back({shelf->page, shelf->filled, shelf->y, width, height});
    shelf->filled += width;
    return cells_.back();
}

TexturePages::Shelf* TexturePages::openShelf(int width, int height) {
    for (Shelf& shelf : shelves_)
        if (shelf.height == height && shelf.filled + width <= pageSide)
            return &shelf;
    std::size_t page = 0;
    while (page < pageTops_.size() && pageTops_[page] + height > pageSide)
        ++page;
    if (page == maxPages)
        return nullptr;
    if (page == pageTops_.size())
        makePage();
    shelves_.push_back({page, pageTops_[page], height, 0});
    pageTops_[page] += height;
    return &shelves_.back();
}

void TexturePages::makePage() {
    glBindTexture(GL_TEXTURE_2D, pageName(pageTops_.size()));
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAX_LEVEL, halvings);
    for (int halving = 0; halving <= halvings; ++halving)
        glTexImage2D(GL_TEXTURE_2D, halving, GL_RGBA, pageSide >> halving, pageSide >> halving, 0,
                     GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
    pageTops_.push_back(0);
}

}  // namespace bc
