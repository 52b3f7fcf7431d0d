// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/FrameClock.h"

#include <gtest/gtest.h>

namespace bc {
namespace {

TEST(FrameClock, ShowsANewValueAtMostOnceASecond) {
    FrameClock clock;
    clock.restart(5000);
    EXPECT_TRUE(clock.takeNewValue());
    int changes = 0;
    int last = 0;
    // 50 frames a second, then 20, for three seconds each.
    float now = 5000;
    for (int i = 0; i < 150 + 60; ++i) {
        now += i < 150 ? 20.0F : 50.0F;
        clock.frameBegins(now);
        if (clock.framesPerSecond() != last) {
            ++changes;
            EXPECT_TRUE(clock.takeNewValue());
        }
        last = clock.framesPerSecond();
        clock.frameEnds();
    }
    EXPECT_EQ(last, 20);
    EXPECT_LE(changes, 3);
    EXPECT_FLOAT_EQ(clock.frameTime(), 0);
}

// Plays frames that take some milliseconds of work, with a clock of whole milliseconds, and
// returns how long a frame took on average.
double averageFrame(FrameLimiter& limiter, double work, int frames) {
    double time = 1000;
    for (int i = 0; i < frames; ++i) {
        time += work;
        time += limiter.waitAfterFrame(static_cast<double>(static_cast<long>(time)));
    }
    return (time - 1000) / frames;
}

TEST(FrameLimiter, HoldsTheRateOnlyOfThoseWhoAreFaster) {
    FrameLimiter limiter;
    EXPECT_NEAR(averageFrame(limiter, 2, 600), 1000.0 / 60, 0.1);
    EXPECT_NEAR(averageFrame(limiter, 30, 100), 30, 0.1);
    limiter.setRate(144);
    EXPECT_NEAR(averageFrame(limiter, 1, 600), 1000.0 / 144, 0.1);
    for (const double none : {0.0, -1.0, 1e9}) {
        limiter.setRate(none);
        EXPECT_DOUBLE_EQ(limiter.period(), 1000.0 / 60);
    }
}

TEST(FrameLimiter, DoesNotHoldUpADriverThatWaits) {
    FrameLimiter limiter;
    limiter.setRate(60);
    double time = 1000;
    double waited = 0;
    for (int i = 0; i < 600; ++i) {
        time += 1000.0 / 59.94;
        waited += limiter.waitAfterFrame(time);
    }
    EXPECT_EQ(waited, 0);
}

TEST(FrameLimiter, DoesNotCatchUpAfterAPause) {
    FrameLimiter limiter;
    averageFrame(limiter, 2, 10);
    static_cast<void>(limiter.waitAfterFrame(60000));
    EXPECT_GE(limiter.waitAfterFrame(60001), 10U);
}

}  // namespace
}  // namespace bc
