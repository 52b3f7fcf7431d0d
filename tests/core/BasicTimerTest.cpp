// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/BasicTimer.h"
#include "core/Ticks.h"

#include <gtest/gtest.h>

namespace bc {
namespace {

class BasicTimerTest : public testing::Test {
  protected:
    BasicTimerTest() {
        useVirtualTicks(5000);
        timer.restart();
    }
    ~BasicTimerTest() override { useRealTicks(); }

    void pass(std::uint32_t ms) {
        advanceVirtualTicks(ms);
        timer.tick();
    }

    BasicTimer timer;
};

TEST_F(BasicTimerTest, MeasuresFromStartAndBetweenTicks) {
    pass(100);
    pass(16);
    EXPECT_EQ(timer.elapsed(), 116);
    EXPECT_FLOAT_EQ(timer.elapsedSeconds(), 0.116F);
    EXPECT_FLOAT_EQ(timer.frameSeconds(), 0.016F);
    advanceVirtualTicks(1000);
    EXPECT_EQ(timer.elapsed(), 116) << "stands until its owner ticks it";
}

TEST_F(BasicTimerTest, PausedTimeDoesNotCount) {
    pass(300);
    pass(40);
    timer.pause();
    EXPECT_TRUE(timer.paused);
    advanceVirtualTicks(5000);
    timer.resume();
    EXPECT_FALSE(timer.paused);
    EXPECT_EQ(timer.elapsed(), 340);
    EXPECT_EQ(timer.current, ticksNow());
    EXPECT_FLOAT_EQ(timer.frameSeconds(), 0.04F);
    pass(25);
    EXPECT_EQ(timer.elapsed(), 365);
}

TEST_F(BasicTimerTest, ReadBackLaterItHasElapsedAsMuch) {
    pass(11980);
    pass(20);
    const std::string saved = timer.toString();
    EXPECT_EQ(saved, "5000,17000,16980,1000,true");

    useVirtualTicks(100);
    BasicTimer loaded;
    loaded.running = false;
    loaded.fromString(saved);
    EXPECT_EQ(loaded.elapsed(), 12000);
    EXPECT_EQ(loaded.current, 100);
    EXPECT_FLOAT_EQ(loaded.frameSeconds(), 0.02F);
    EXPECT_EQ(loaded.rate, 1000);
    EXPECT_TRUE(loaded.running);
}

TEST_F(BasicTimerTest, ShortTextIsIgnoredButTheTimesStillMove) {
    pass(500);
    const float rate = timer.rate;
    advanceVirtualTicks(2500);
    timer.fromString("1,2,3,4");
    EXPECT_EQ(timer.current, ticksNow());
    EXPECT_EQ(timer.elapsed(), 500);
    EXPECT_EQ(timer.rate, rate);
    timer.fromString("1,2,3,4,True");
    EXPECT_FALSE(timer.running) << "only \"true\" is true";
    EXPECT_EQ(timer.elapsed(), 1);
}

}  // namespace
}  // namespace bc
