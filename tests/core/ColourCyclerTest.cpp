// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/ColourCycler.h"

#include <gtest/gtest.h>

namespace bc {
namespace {

TEST(ColourCycler, TurnsRoundOnlyWhenItWouldPassABound) {
    ColourCycler cycler;
    cycler.setMin(-1);
    cycler.setMax(255);
    cycler.setSpeed(64);
    cycler.setCurrent(239);
    cycler.setRising(true);
    const float steps[][3] = {
        {0.25F, 255, 1}, {0.25F, 255, 0}, {0.25F, 239, 0}, {3.75F, -1, 0}, {0.25F, -1, 1}};
    for (const auto& [seconds, value, rising] : steps) {
        cycler.update(seconds);
        EXPECT_EQ(cycler.getCurrent(), value);
        EXPECT_EQ(cycler.isRising(), rising == 1);
    }
}

}  // namespace
}  // namespace bc
