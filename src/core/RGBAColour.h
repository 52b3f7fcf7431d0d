// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Digits.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace bc {

/// A colour with channels from 0 to 255. Animations may move a channel out of that range; toByte
/// clamps it for drawing.
struct RGBAColour {
    float r = 0;
    float g = 0;
    float b = 0;
    float a = 0;

    constexpr RGBAColour() = default;
    constexpr RGBAColour(float red, float green, float blue, float alpha = 255)
        : r(red), g(green), b(blue), a(alpha) {}

    [[nodiscard]] constexpr float getR() const { return r; }
    [[nodiscard]] constexpr float getG() const { return g; }
    [[nodiscard]] constexpr float getB() const { return b; }
    [[nodiscard]] constexpr float getA() const { return a; }

    /// "r,g,b,a".
    [[nodiscard]] std::string toString(Digits digits = Digits::usual) const;
    /// Reads "r,g,b,a". A text with more or fewer than four numbers changes nothing.
    void fromString(std::string_view text);

    constexpr void set(float red, float green, float blue) {
        r = red;
        g = green;
        b = blue;
    }
    constexpr void set(float red, float green, float blue, float alpha) {
        set(red, green, blue);
        a = alpha;
    }

    /// The channel rounded down to a whole number and clamped to 0..255; 0 for NaN.
    [[nodiscard]] static std::uint8_t toByte(float channel);

    friend constexpr bool operator==(const RGBAColour&, const RGBAColour&) = default;
};

}  // namespace bc
