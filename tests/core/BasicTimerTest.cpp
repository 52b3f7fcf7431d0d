// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/BasicTimer.h"
#include "core/Ticks.h"

#include <gtest/gtest.h>

namespace bc {
namespace {

/// A timer that was started when the clock showed 5000 and has measured 340 ms since.
class BasicTimerTest : public testing::Test {
  protected:
    BasicTimerTest() {
        useVirtualTicks(5000);
        timer.restart();
        tickAfter(300);
        tickAfter(40);
    }
    ~BasicTimerTest() override { useRealTicks(); }

    void tickAfter(std::uint32_t ms) {
        advanceVirtualTicks(ms);
        timer.tick();
    }

    BasicTimer timer{.paused = true};
};

TEST_F(BasicTimerTest, MeasuresFromTickToTickWithoutPauses) {
    EXPECT_FALSE(timer.paused);
    advanceVirtualTicks(1000);
    EXPECT_EQ(timer.elapsed(), 340) << "stays the same until the next tick";
    timer.pause();
    advanceVirtualTicks(4000);
    timer.resume();
    EXPECT_FALSE(timer.paused);
    EXPECT_EQ(timer.current, ticksNow());
    EXPECT_FLOAT_EQ(timer.frameSeconds(), 0.04F);
    tickAfter(25);
    EXPECT_FLOAT_EQ(timer.elapsedSeconds(), 0.365F);
}

TEST_F(BasicTimerTest, ReadsBackItsElapsedTimeAtAnotherTime) {
    EXPECT_EQ(timer.toString(), "5000,5340,5300,1000,true");
    useVirtualTicks(100);
    struct Case {
        std::string text;
        float elapsed, frame, rate;
        bool running;
    };
    for (const Case& c :
         {Case{timer.toString(), 340, 0.04F, 1000, true}, Case{"1,9,5,4,True", 8, 0.004F, 4, false},
          Case{"too,few,numbers,7", 500, 0.02F, 60, true}}) {
        BasicTimer loaded{.start = 20, .current = 520, .previous = 500, .rate = 60, .paused = true};
        loaded.fromString(c.text);
        EXPECT_EQ(loaded.elapsed(), c.elapsed) << c.text;
        EXPECT_EQ(loaded.current, 100) << c.text;
        EXPECT_FLOAT_EQ(loaded.frameSeconds(), c.frame) << c.text;
        EXPECT_EQ(loaded.rate, c.rate) << c.text;
        EXPECT_EQ(loaded.running, c.running) << c.text;
        EXPECT_FALSE(loaded.paused) << c.text;
    }
}

}  // namespace
}  // namespace bc
