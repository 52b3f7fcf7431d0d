// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/Random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace bc {
namespace {

TEST(Random, SeedAndSavedStateGiveTheSameSequenceAgain) {
    const auto draw = [] {
        std::array<int, 5> out{};
        std::generate(out.begin(), out.end(), randomInt);
        return out;
    };
    seedRandom(7);
    const auto first = draw();
    const std::uint32_t state = randomState();
    const auto second = draw();
    const int looks = looksRandom().integer();
    seedRandom(7);
    EXPECT_EQ(draw(), first);
    EXPECT_EQ(looksRandom().integer(), looks);
    EXPECT_EQ(randomState(), state) << "what is only seen does not influence play";
    setRandomState(state);
    EXPECT_EQ(draw(), second);
    seedRandom(8);
    EXPECT_NE(draw()[0] / 1024, first[0] / 1024) << "seeds next to each other differ at once";
}

TEST(Random, NumbersSpreadOverTheirWholeRange) {
    seedRandom(1);
    std::array<int, 16> whole{};
    std::array<int, 5> real{};
    for (int i = 0; i < 16000; ++i) {
        ++whole.at(static_cast<std::size_t>(randomInt() / 2048));
        ++real.at(static_cast<std::size_t>(randomRange(-2, 3) + 2));
    }
    for (const int count : whole)
        EXPECT_NEAR(count, 1000, 150);
    for (const int count : real)
        EXPECT_NEAR(count, 3200, 300);
    EXPECT_NEAR(randomDirection().length(), 1, 1e-6);
    const std::uint32_t state = randomState();
    EXPECT_EQ(randomRange(0, 0), 0);
    EXPECT_EQ(randomState(), state) << "no number is drawn for nothing";
    EXPECT_EQ(randomRange(1, 1), 1);
    EXPECT_NE(randomState(), state);
}

}  // namespace
}  // namespace bc
