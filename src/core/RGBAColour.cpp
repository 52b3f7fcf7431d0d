// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/RGBAColour.h"

#include "core/Text.h"

namespace bc {

std::string RGBAColour::toString(Digits digits) const {
    return formatFloat(r, digits) + ',' + formatFloat(g, digits) + ',' + formatFloat(b, digits) +
           ',' + formatFloat(a, digits);
}

void RGBAColour::fromString(std::string_view text) {
    float v[5];
    if (parseFloats(text, ",", v, 5) == 4)
        set(v[0], v[1], v[2], v[3]);
}

std::uint8_t RGBAColour::toByte(float channel) {
    if (!(channel > 0))
        return 0;
    return channel >= 255 ? std::uint8_t{255} : static_cast<std::uint8_t>(channel);
}

}  // namespace bc
