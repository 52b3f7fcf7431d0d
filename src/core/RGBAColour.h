// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Digits.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace bc {

/// A colour on the 0 to 255 scale; channels may leave the range while they are animated and are
/// clamped where they are drawn.
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
    /// Accepts exactly four numbers; anything else changes nothing.
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

    /// The channel as it is drawn: truncated, 0 to 255.
    [[nodiscard]] static std::uint8_t toByte(float channel);

    friend constexpr bool operator==(const RGBAColour&, const RGBAColour&) = default;
};

}  // namespace bc
