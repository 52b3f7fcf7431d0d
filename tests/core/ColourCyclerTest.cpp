// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/ColourCycler.h"

#include <gtest/gtest.h>

namespace bc {
namespace {

TEST(ColourCycler, LandsOnTheBoundItPassesAndTurnsRound) {
    ColourCycler cycler;
    cycler.setMin(0);
    cycler.setMax(255);
    cycler.setSpeed(100);
    cycler.setCurrent(250);
    cycler.setRising(true);

    cycler.update(0.1F);
    EXPECT_EQ(cycler.getCurrent(), 255);
    EXPECT_FALSE(cycler.isRising());
    cycler.update(0.1F);
    EXPECT_EQ(cycler.getCurrent(), 245);
    cycler.update(100);
    EXPECT_EQ(cycler.getCurrent(), 0);
    EXPECT_TRUE(cycler.isRising());
}

TEST(ColourCycler, ReachingABoundExactlyDoesNotTurn) {
    ColourCycler cycler;
    cycler.setMin(0);
    cycler.setMax(10);
    cycler.setSpeed(10);
    cycler.setRising(true);
    cycler.update(1);
    EXPECT_EQ(cycler.getCurrent(), 10);
    EXPECT_TRUE(cycler.isRising());
}

}  // namespace
}  // namespace bc
