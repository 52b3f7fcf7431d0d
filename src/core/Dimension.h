// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Digits.h"

#include <string>
#include <string_view>

namespace bc {

/// A size. Also reads "low,high" pairs of the particle definitions.
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
    /// Two or three comma-separated numbers; fewer change nothing.
    void fromString(std::string_view text);
    constexpr void set(float w, float h, float d) {
        set(w, h);
        depth = d;
    }
    constexpr void set(float w, float h) {
        width = w;
        height = h;
    }
    /// "640x480" or "640 x 480"; fewer than two numbers change nothing.
    void fromSizeString(std::string_view text);

    friend constexpr bool operator==(const Dimension&, const Dimension&) = default;
};

}  // namespace bc
