// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace bc {

/// A word of flags named by their bit values (1, 2, 4, ...).
struct BitFlags {
    std::uint32_t bits = 0;

    constexpr BitFlags() = default;
    explicit constexpr BitFlags(std::uint32_t b) : bits(b) {}
    constexpr void set(std::uint32_t mask) { bits |= mask; }
    constexpr void clear(std::uint32_t mask) { bits &= ~mask; }
    [[nodiscard]] constexpr bool test(std::uint32_t mask) const { return (bits & mask) != 0; }
};

}  // namespace bc
