// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/TexCoord.h"

#include "core/Text.h"

namespace bc {

std::string TexCoord::toString(Digits digits) const {
    return formatFloat(u, digits) + ',' + formatFloat(v, digits);
}

void TexCoord::fromString(std::string_view text) {
    float values[3];
    if (parseFloats(text, ",", values, 3) == 2) {
        u = values[0];
        v = values[1];
    }
}

}  // namespace bc
