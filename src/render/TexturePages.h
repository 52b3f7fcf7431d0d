// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "render/RenderDevice.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace bc {

/// Small images side by side on large textures, so that what shows different ones can be drawn
/// together. Each lies within a border of its own edge (or of its opposite edge, when it tiles),
/// wide enough for the four halvings of the page. Needs a current OpenGL context but for clear.
class TexturePages {
  public:
    /// Nothing for images that must stand alone: too large, not a power of two, or no room left.
    /// May leave another texture bound.
    [[nodiscard]] std::optional<TexturePlace> add(const Image& image, bool clamp);
    /// The room of an image is free again.
    void remove(const TexturePlace& place);
    /// Deletes all pages.
    void removeAll();
    /// The same when the context took them along.
    void clear();

  private:
    /// Room for an image with its border, in pixels of its page.
    struct Cell {
        std::size_t page = 0;
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;
        bool used = true;
    };
    /// A row of cells of one height.
    struct Shelf {
        std::size_t page = 0;
        int y = 0;
        int height = 0;
        int filled = 0;
    };

    [[nodiscard]] std::optional<Cell> findRoom(int width, int height);
    [[nodiscard]] Shelf* openShelf(int width, int height);
    void makePage();

    std::vector<int> pageTops_;
    std::vector<Shelf> shelves_;
    std::vector<Cell> cells_;
};

}  // namespace bc
