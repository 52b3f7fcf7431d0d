// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/Random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

namespace bc {
namespace {

std::vector<int> draw(int count) {
    std::vector<int> out(static_cast<std::size_t>(count));
    std::generate(out.begin(), out.end(), randomInt);
    return out;
}

TEST(Random, SeedAndSavedStateGiveTheSequenceAgain) {
    seedRandom(7);
    const std::vector<int> first = draw(5);
    const std::uint32_t state = randomState();
    const std::vector<int> second = draw(5);
    seedRandom(7);
    EXPECT_EQ(draw(5), first);
    setRandomState(state);
    EXPECT_EQ(draw(5), second);
    seedRandom(8);
    EXPECT_NE(draw(5), first);
}

TEST(Random, SpreadsOverTheWholeRange) {
    seedRandom(1);
    std::array<int, 16> buckets{};
    for (int i = 0; i < 16000; ++i) {
        const int n = randomInt();
        ASSERT_GE(n, 0);
        ASSERT_LE(n, randomMax);
        ++buckets[static_cast<std::size_t>(n / 2048)];
    }
    for (const int count : buckets)
        EXPECT_NEAR(count, 1000, 150);
}

TEST(Random, RangeHoldsItsLowerBoundAndStaysBelowTheUpper) {
    seedRandom(3);
    for (int i = 0; i < 10000; ++i) {
        const float value = randomRange(-2, 3);
        ASSERT_GE(value, -2);
        ASSERT_LT(value, 3);
    }
    EXPECT_EQ(randomRange(5, 5), 5);
}

TEST(Random, EmptyRangeAtZeroDrawsNoNumber) {
    seedRandom(3);
    const std::uint32_t state = randomState();
    EXPECT_EQ(randomRange(0, 0), 0);
    EXPECT_EQ(randomState(), state);
    EXPECT_EQ(randomRange(1, 1), 1);
    EXPECT_NE(randomState(), state);
}

}  // namespace
}  // namespace bc
