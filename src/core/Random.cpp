// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/Random.h"

#include <cmath>

namespace bc {

namespace {

// A linear congruential generator modulo 2^32, with Knuth's multiplier and Lewis's increment. Its
// lower bits repeat after short periods, so integer() returns only the upper 15.
constexpr std::uint32_t multiplier = 1664525U;
constexpr std::uint32_t increment = 1013904223U;

Random play;
Random looks;

}  // namespace

void Random::seed(std::uint32_t seed) {
    // Mixes the bits: without this, seeds that differ by 1 would start with similar numbers.
    seed ^= seed >> 16;
    seed *= 0x7feb352dU;
    seed ^= seed >> 15;
    state_ = seed;
}

int Random::integer() {
    state_ = state_ * multiplier + increment;
    return static_cast<int>(state_ >> 17);
}

float Random::range(float lo, float hi) {
    if (lo == 0 && hi == 0)
        return 0;
    return lo + (hi - lo) * static_cast<float>(integer()) / 32768.0F;
}

Vector Random::direction() {
    const float theta = (range(0, 360) + 90) * 3.1415927F / 180;
    return {-std::cos(theta), -std::sin(theta)};
}

Random& looksRandom() {
    return looks;
}

void seedRandom(std::uint32_t seed) {
    play.seed(seed);
    looks.seed(~seed);
}

std::uint32_t randomState() {
    return play.state();
}
void setRandomState(std::uint32_t state) {
    play.setState(state);
}
int randomInt() {
    return play.integer();
}
float randomRange(float lo, float hi) {
    return play.range(lo, hi);
}
Vector randomDirection() {
    return play.direction();
}

}  // namespace bc
