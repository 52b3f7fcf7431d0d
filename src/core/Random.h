// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

#include <cstdint>

namespace bc {

/// The one random generator of the game: seedable, the same sequence on every machine.
/// Process-wide, because everything that plays draws from one sequence.
void seedRandom(std::uint32_t seed);
/// The whole state, for saves; setRandomState continues the sequence there.
[[nodiscard]] std::uint32_t randomState();
void setRandomState(std::uint32_t state);

/// 0 to randomMax, inclusive.
inline constexpr int randomMax = 32767;
int randomInt();
/// A value in [lo, hi); exactly 0, without drawing a number, when both are 0.
float randomRange(float lo, float hi);
/// A unit vector in the plane of play.
Vector randomDirection();

}  // namespace bc
