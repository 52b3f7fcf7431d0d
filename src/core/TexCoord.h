// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Digits.h"

#include <string>
#include <string_view>

namespace bc {

/// A texture coordinate; 0 to 1 covers the image once.
struct TexCoord {
    float u = 0;
    float v = 0;

    constexpr TexCoord() = default;
    constexpr TexCoord(float pu, float pv) : u(pu), v(pv) {}

    /// "u,v".
    [[nodiscard]] std::string toString(Digits digits = Digits::usual) const;
    /// Reads "u,v". A text with more or fewer than two numbers changes nothing.
    void fromString(std::string_view text);

    friend constexpr bool operator==(const TexCoord&, const TexCoord&) = default;
};

}  // namespace bc
