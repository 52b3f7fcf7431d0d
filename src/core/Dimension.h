// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Digits.h"

#include <string>
#include <string_view>

namespace bc {

/// A size in pixels or world units, whichever its user works in. Particle definitions also store a
/// range of numbers in one, the lower end as its width and the upper end as its height.
struct Dimension {
    float width = 0;
    float height = 0;
    float depth = 0;

    constexpr Dimension() = default;
    constexpr Dimension(float w, float h, float d = 0) : width(w), height(h), depth(d) {}

    [[nodiscard]] constexpr float getWidth() const { return width; }
    [[nodiscard]] constexpr float getHeight() const { return height; }
    [[nodiscard]] constexpr float getDepth() const { return depth; }

    /// "width,height,depth".
    [[nodiscard]] std::string toString(Digits digits = Digits::usual) const;
    /// "width x height".
    [[nodiscard]] std::string toSizeString() const;
    /// Reads "width,height" (depth stays) or "width,height,depth". A text with fewer than two
    /// numbers changes nothing.
    void fromString(std::string_view text);
    constexpr void set(float w, float h, float d) {
        set(w, h);
        depth = d;
    }
    constexpr void set(float w, float h) {
        width = w;
        height = h;
    }
    /// Reads "640x480" or "640 x 480". A text with fewer than two numbers changes nothing.
    void fromSizeString(std::string_view text);

    friend constexpr bool operator==(const Dimension&, const Dimension&) = default;
};

}  // namespace bc
