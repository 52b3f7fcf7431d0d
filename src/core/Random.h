// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

#include <cstdint>

namespace bc {

/// The random generator of the game. The same seed gives the same sequence on every machine.
class Random {
  public:
    void seed(std::uint32_t seed);
    /// The position in the sequence, for saves; setState continues from it.
    [[nodiscard]] std::uint32_t state() const { return state_; }
    void setState(std::uint32_t state) { state_ = state; }

    /// 0 to randomMax, inclusive.
    int integer();
    /// A value in [lo, hi). When both are 0 the result is 0 and no number is drawn.
    float range(float lo, float hi);
    /// A unit vector in the x-y plane.
    Vector direction();

  private:
    std::uint32_t state_ = 1;
};

inline constexpr int randomMax = 32767;

/// The process-wide generator for everything that is only seen, such as particles. It is separate
/// from the generator for play, so that the number of sparks does not influence what happens, and
/// saves do not hold it.
Random& looksRandom();

// The process-wide generator for everything that influences play. Saves hold its state.
/// Seeds both generators.
void seedRandom(std::uint32_t seed);
[[nodiscard]] std::uint32_t randomState();
void setRandomState(std::uint32_t state);
int randomInt();
float randomRange(float lo, float hi);
Vector randomDirection();

}  // namespace bc
