// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/EventPump.h"

#include <gtest/gtest.h>

namespace bc {
namespace {

class EventPumpTest : public testing::Test {
  protected:
    bool inject(const std::string& line) {
        return pump.inject(line, [](const std::string& name) {
            return name == "RETURN" ? 13 : name == "RSHIFT" ? SDLK_RSHIFT : name == "B" ? 'b' : -1;
        });
    }
    SDL_Event next() {
        SDL_Event event{};
        EXPECT_TRUE(pump.poll(event));
        return event;
    }
    bool empty() {
        SDL_Event event;
        return !pump.poll(event);
    }
    EventPump pump{false};
};

TEST_F(EventPumpTest, KeysComeWithTheirCharacters) {
    ASSERT_TRUE(inject("@key RETURN"));
    ASSERT_TRUE(inject("@keyup RETURN"));
    ASSERT_TRUE(inject("@type A b"));
    SDL_Event e = next();
    EXPECT_EQ(e.type, SDL_KEYDOWN);
    EXPECT_EQ(e.key.keysym.sym, 13);
    EXPECT_EQ(e.key.keysym.unicode, 13);
    EXPECT_EQ(next().type, SDL_KEYUP);
    for (const char c : {'A', ' ', 'b'}) {
        e = next();
        EXPECT_EQ(e.type, SDL_KEYDOWN);
        EXPECT_EQ(e.key.keysym.unicode, c);
        EXPECT_EQ(e.key.keysym.sym, c == 'A' ? 'a' : c);
        EXPECT_EQ(e.key.keysym.mod, c == 'A' ? KMOD_LSHIFT : KMOD_NONE);
        EXPECT_EQ(next().type, SDL_KEYUP);
    }
    EXPECT_TRUE(empty());
}

TEST_F(EventPumpTest, AModifierCountsUntilItIsReleased) {
    for (const char* line : {"@key RSHIFT", "@key B", "@keyup RSHIFT", "@key B"})
        ASSERT_TRUE(inject(line));
    EXPECT_EQ(next().key.keysym.mod, KMOD_RSHIFT);
    SDL_Event e = next();
    EXPECT_EQ(e.key.keysym.mod, KMOD_RSHIFT);
    EXPECT_EQ(e.key.keysym.unicode, 'B');
    EXPECT_EQ(next().key.keysym.mod, KMOD_NONE);
    e = next();
    EXPECT_EQ(e.key.keysym.mod, KMOD_NONE);
    EXPECT_EQ(e.key.keysym.unicode, 'b');
}

TEST_F(EventPumpTest, MotionIsRelativeToTheLastPlaceAndFirstToTheCursor) {
    pump.cursorIsAt(20, 60);
    ASSERT_TRUE(inject("@move 100 50"));
    pump.cursorIsAt(512, 384);
    ASSERT_TRUE(inject("@move 90 70"));
    ASSERT_TRUE(inject("@press 3"));
    SDL_Event e = next();
    EXPECT_EQ(e.motion.xrel, 80);
    EXPECT_EQ(e.motion.yrel, -10);
    e = next();
    EXPECT_EQ(e.motion.xrel, -10);
    EXPECT_EQ(e.motion.yrel, 20);
    e = next();
    EXPECT_EQ(e.type, SDL_MOUSEBUTTONDOWN);
    EXPECT_EQ(e.button.button, 3);
    EXPECT_EQ(e.button.x, 90);
    EXPECT_EQ(e.button.y, 70);
}

TEST_F(EventPumpTest, WhatIsNoEventInjectsNothing) {
    for (const char* line : {"@key", "@key NOSUCH", "@move 1", "@press", "@press 0", "@press 900",
                             "@type", "@dance 1", "@"})
        EXPECT_FALSE(inject(line)) << line;
    EXPECT_TRUE(empty());
}

}  // namespace
}  // namespace bc
