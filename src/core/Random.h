// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

#include <cstdint>

namespace bc {

/// The random generator of the game: the same sequence on every machine.
class Random {
  public:
    void seed(std::uint32_t seed);
    /// The whole state, for saves; setState continues the sequence there.
    [[nodiscard]] std::uint32_t state() const { return state_; }
    void setState(std::uint32_t state) { state_ = state; }

    /// 0 to randomMax, inclusive.
    int integer();
    /// A value in [lo, hi); exactly 0, without drawing a number, when both are 0.
    float range(float lo, float hi);
    /// A unit vector in the plane of play.
    Vector direction();

  private:
    std::uint32_t state_ = 1;
};

inline constexpr int randomMax = 32767;

/// What only looks draws from a sequence of its own: how many sparks fly, and whether those of
/// before a save are still there after it, does not change what happens.
Random& looksRandom();

// Everything that plays draws from one process-wide sequence.
/// Starts both sequences anew.
void seedRandom(std::uint32_t seed);
[[nodiscard]] std::uint32_t randomState();
void setRandomState(std::uint32_t state);
int randomInt();
float randomRange(float lo, float hi);
Vector randomDirection();

}  // namespace bc
