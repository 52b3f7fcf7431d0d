// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "input/GameInput.h"
#include "support/ConsoleFixture.h"
#include "support/RecordingRenderer.h"

#include <gmock/gmock.h>

#include <sstream>

namespace bc {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class GameInputTest : public ConsoleFixture {
  protected:
    GameInputTest() {
        vars().createOrSet("sensitivity", "1", "");
        input.setRenderer(&renderer);
        input.init();
        for (const char* name : {"+a", "-a", "+b", "-b", "pause", "+fire", "-fire"})
            note(name);
    }
    std::vector<std::string> press(const std::string& key) {
        calls.clear();
        logOf([&] { input.keyDown(-1, -1, key); });
        return calls;
    }
    std::vector<std::string> release(const std::string& key) {
        calls.clear();
        logOf([&] { input.keyUp(-1, -1, key); });
        return calls;
    }

    test::RecordingRenderer renderer{800, 600};
    GameInput input;
};

TEST_F(GameInputTest, BindShowsSetsAndReplaces) {
    EXPECT_THAT(run("bind"), ElementsAre("Usage: bind <key> <command>", "e.g.: bind p pause"));
    EXPECT_THAT(run("bind P"), ElementsAre("p is unbound"));
    EXPECT_THAT(run("bind P Pause  Now"), IsEmpty());
    EXPECT_THAT(run("bind p"), ElementsAre("p is pause now"));
    run("bind p +a");
    EXPECT_THAT(input.bindings(), ElementsAre(testing::Pair("p", "+a")));
    EXPECT_THAT(run("bind Unbound pause"), IsEmpty());
    EXPECT_EQ(input.bindings().size(), 1U);
}

TEST_F(GameInputTest, UnboundKeysStayInTheFileOnly) {
    run("bind p pause; unused");
    run("bind q +a");
    EXPECT_THAT(run("unbind"), ElementsAre("Usage: unbind <key>", "e.g.: unbind p"));
    run("unbind P");
    run("unbind new");
    EXPECT_THAT(run("listbinds"), ElementsAre("255,205,22,255|    Key Bindings", "    q is +a"));
    EXPECT_THAT(run("bind p"), ElementsAre("p is unbound"));
    EXPECT_THAT(press("p"), IsEmpty());
    std::ostringstream out;
    input.writeBindings(out);
    EXPECT_EQ(out.str(), "\n//key bindings\n\nbind new \nbind p \nbind q +a\n\n");
}

TEST_F(GameInputTest, WrittenBindingsAreRestored) {
    run("bind f +fire 10;+a");
    run("bind mouse1 +fire");
    std::ostringstream out;
    input.writeBindings(out);
    files::replace("data/binds.txt", out.str());
    const auto before = input.bindings();
    EXPECT_EQ(input.keyForCommand("+fire"), "mouse1");
    EXPECT_EQ(input.keyForCommand("+a"), "unbound") << "a part of a binding is none";
    run("bind f nothing");
    run("unbind mouse1");
    run("exec binds.txt");
    EXPECT_EQ(input.bindings(), before);
}

TEST_F(GameInputTest, PressRunsAndReleaseRunsTheTwins) {
    struct Case {
        const char* binding;
        std::vector<std::string> pressed;
        std::vector<std::string> released;
    };
    const std::vector<Case> cases = {
        {"+a", {"+a"}, {"-a"}},
        {"pause", {"pause"}, {}},
        {"+a;+b", {"+a", "+b"}, {"-a", "-b"}},
        {"pause;+b;;+a", {"pause", "+b", "+a"}, {"-b", "-a"}},
        {"+a; +b", {"+a", "+b"}, {"-a"}},
        {"+fire 10", {"+fire|10"}, {"-fire|10"}},
    };
    for (const Case& c : cases) {
        run(std::string("bind K ") + c.binding);
        EXPECT_EQ(press("k"), c.pressed) << c.binding;
        EXPECT_EQ(release("K"), c.released) << c.binding;
    }
    EXPECT_THAT(press("other"), IsEmpty());
    EXPECT_THAT(release(""), IsEmpty());
}

TEST_F(GameInputTest, MouseButtonsAreKeys) {
    run("bind MOUSE1 +Fire");
    run("bind mwheelup pause");
    EXPECT_THAT(input.bindings(), Contains(testing::Pair("mouse1", "+fire")));
    logOf([&] {
        input.mouseDown(5, 5, 1);
        input.mouseUp(5, 5, 1);
        input.mouseDown(5, 5, 4);
        input.mouseDown(5, 5, 77);
        input.mouseUp(5, 5, 77);
    });
    EXPECT_THAT(calls, ElementsAre("+fire", "-fire", "pause"));
    EXPECT_EQ(input.mouseButtonName(3), "MOUSE2");
    EXPECT_EQ(input.mouseButtonName(2), "MOUSE3");
    EXPECT_EQ(input.mouseButtonName(5), "MWHEELDOWN");
}

TEST_F(GameInputTest, CursorMovesByScaledMotionOnTheScreenOnly) {
    struct Case {
        const char* sensitivity;
        float relX, relY;
        float x, y;
    };
    for (const Case& c : {Case{"2", 3, -4, 106, 92}, Case{"0.5", 3, 3, 101.5F, 101.5F},
                          Case{"1", 5000, 5000, 800, 600}, Case{"1", -5000, -5000, 0, 0},
                          Case{"0", 10, 10, 100, 100}, Case{"3e38", 1000, -1000, 100, 100}}) {
        vars().setVar("sensitivity", c.sensitivity);
        input.mouseX = input.mouseY = 100;
        input.mouseMove(7, 7, c.relX, c.relY);
        EXPECT_EQ(input.mouseX, c.x) << c.sensitivity;
        EXPECT_EQ(input.mouseY, c.y) << c.sensitivity;
    }
    vars().setVar("sensitivity", "2");
    input.mouseMove(0, 0, 3, -4);
    EXPECT_EQ(input.mouseRelX, 6);
    EXPECT_EQ(input.mouseRelY, -8);
}

}  // namespace
}  // namespace bc
