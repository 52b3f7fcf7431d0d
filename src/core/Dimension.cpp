// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/Dimension.h"

#include "core/Text.h"

namespace bc {

std::string Dimension::toString(Digits digits) const {
    return formatFloat(width, digits) + ',' + formatFloat(height, digits) + ',' +
           formatFloat(depth, digits);
}

std::string Dimension::toSizeString() const {
    return formatFloat(width) + " x " + formatFloat(height);
}

void Dimension::fromString(std::string_view text) {
    float v[3];
    const int count = parseFloats(text, ",", v, 3);
    if (count < 2)
        return;
    set(v[0], v[1]);
    if (count >= 3)
        depth = v[2];
}

void Dimension::fromSizeString(std::string_view text) {
    float v[2];
    if (parseFloats(text, " x", v, 2) == 2)
        set(v[0], v[1]);
}

}  // namespace bc
