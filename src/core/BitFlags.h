// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace bc {

/// A set of flags. Each flag is one bit; a mask is the sum of the bits of one or more flags.
struct BitFlags {
    std::uint32_t bits = 0;

    constexpr BitFlags() = default;
    explicit constexpr BitFlags(std::uint32_t b) : bits(b) {}
    constexpr void set(std::uint32_t mask) { bits |= mask; }
    constexpr void clear(std::uint32_t mask) { bits &= ~mask; }
    /// True when at least one flag of the mask is set.
    [[nodiscard]] constexpr bool test(std::uint32_t mask) const { return (bits & mask) != 0; }
};

}  // namespace bc
