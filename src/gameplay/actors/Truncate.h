// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <limits>

namespace bc {

/// Towards zero; what no int can hold becomes the nearest that can. Points of damage and health
/// are whole numbers, their factors are not.
[[nodiscard]] inline int truncated(float value) {
    // The largest float below 2^31; the test is false for NaN.
    constexpr float limit = 2147483520.0F;
    if (!(value > -limit))
        return value <= -limit ? std::numeric_limits<int>::min() : 0;
    return value < limit ? static_cast<int>(value) : std::numeric_limits<int>::max();
}

/// The nearest int: points come from saves and the console as well.
[[nodiscard]] inline int saturated(long long value) {
    return static_cast<int>(std::clamp<long long>(value, std::numeric_limits<int>::min(),
                                                  std::numeric_limits<int>::max()));
}

}  // namespace bc
