// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace bc {

/// The low bytes of a number, lowest first, for making files.
inline std::string little(std::uint64_t value, int count) {
    std::string out;
    for (int i = 0; i < count; ++i)
        out += static_cast<char>(value >> (8 * i) & 0xff);
    return out;
}

}  // namespace bc
