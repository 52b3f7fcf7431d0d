// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/Ticks.h"
#include "input/Console.h"
#include "support/ConsoleFixture.h"
#include "support/FakeGame.h"
#include "support/RecordingRenderer.h"

#include <gmock/gmock.h>

namespace bc {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;

class ConsoleTest : public ConsoleFixture {
  protected:
    ConsoleTest() {
        useVirtualTicks(1000);
        vars().createOrSet("con_colour", "0,0,0,255", "");
        vars().createOrSet("con_showwarnings", "1", "");
        vars().createOrSet("con_showdebug", "1", "");
        vars().createOrSet("con_height", "0.5", "");
        commands().setOutput(&console);
        console.init(&game);
        console.setScreenSize(800, 600);
        console.setOpen(true);
    }
    ~ConsoleTest() override { useRealTicks(); }

    void type(const std::string& text) {
        for (const char c : text)
            console.keyDown(c, c, std::string(1, c));
    }
    void key(const std::string& name) {
        logOf([&] { console.keyDown(-1, 0, name); });
    }
    void enter(const std::string& line) {
        type(line);
        key("RETURN");
    }
    std::vector<std::string> texts() const {
        std::vector<std::string> out;
        for (const ConLine& line : console.getLines())
            out.push_back(line.text);
        return out;
    }
    std::vector<std::string> shown() {
        std::vector<std::string> out;
        for (const ConLine* line : console.visibleLines())
            out.push_back(line->text);
        return out;
    }
    std::vector<test::DrawCall> draw() {
        renderer.calls.clear();
        console.draw(renderer);
        return renderer.calls;
    }

    FakeGame game;
    test::RecordingRenderer renderer{800, 600};
    Console console;
};

TEST_F(ConsoleTest, SubmittedLineIsEchoedAndRun) {
    note("hello");
    enter("hello World");
    EXPECT_THAT(calls, ElementsAre("hello|World"));
    EXPECT_THAT(texts(), ElementsAre("hello World"));
    EXPECT_EQ(console.getInput(), "");
    console.keyDown(13, 0, "KP_Enter");
    EXPECT_THAT(texts(), ElementsAre("hello World", "")) << "an empty line is echoed, not run";
    EXPECT_THAT(console.getHistory(), ElementsAre("hello World", ""));
}

TEST_F(ConsoleTest, OnlyPrintableCharactersUpToTheLimit) {
    console.keyDown(1, 31, "x");
    console.keyDown(1, 127, "DELETE");
    console.keyDown(1, 0xE9, "e");
    console.keyDown(96, '`', "`");
    type("a b~");
    EXPECT_EQ(console.getInput(), "a b~");
    key("BackSpace");
    EXPECT_EQ(console.getInput(), "a b");
    type(std::string(100, 'x'));
    EXPECT_EQ(console.getInput().size(), Console::maxInput);
    for (int i = 0; i < 80; ++i)
        key("BACKSPACE");
    EXPECT_EQ(console.getInput(), "");
}

TEST_F(ConsoleTest, HistoryGoesUpAndDownWithinItsEnds) {
    key("UP");
    key("DOWN");
    EXPECT_EQ(console.getInput(), "");
    for (const char* line : {"one", "two", "two", "three"})
        enter(line);
    type("half");
    const std::vector<std::pair<const char*, const char*>> steps = {
        {"UP", "three"}, {"UP", "two"},   {"UP", "two"},   {"UP", "one"},
        {"UP", "one"},   {"DOWN", "two"}, {"DOWN", "two"}, {"DOWN", "three"},
        {"DOWN", ""},    {"DOWN", ""},    {"UP", "three"}};
    for (const auto& [name, input] : steps) {
        key(name);
        EXPECT_EQ(console.getInput(), input);
    }
    enter("");
    key("UP");
    EXPECT_EQ(console.getInput(), "three") << "submitting starts at the end again";
}

TEST_F(ConsoleTest, ViewFollowsUnlessScrolledBack) {
    for (int i = 0; i < 10; ++i)
        console.print("line " + std::to_string(i));
    EXPECT_EQ(console.getScroll(), 9);
    key("PAGEUP");
    console.print("new");
    EXPECT_EQ(console.getScroll(), 8) << "stays where the user looks";
    EXPECT_EQ(console.getLastIndex(), 10);
    EXPECT_EQ(shown().front(), "line 8");
    EXPECT_EQ(draw()[2].text, "^^^^^^^^^^^^^^^^^^^");
    key("PAGEDOWN");
    key("PAGEDOWN");
    key("PAGEDOWN");
    EXPECT_EQ(console.getScroll(), 10);
    console.print("newer");
    EXPECT_EQ(shown().front(), "newer");

    struct Case {
        int button;
        int times;
        int scroll;
    };
    for (const Case& c :
         {Case{4, 1, 9}, Case{4, 20, 0}, Case{5, 1, 2}, Case{1, 1, 2}, Case{5, 20, 11}}) {
        for (int i = 0; i < c.times; ++i)
            console.mouseDown(0, 0, c.button);
        EXPECT_EQ(console.getScroll(), c.scroll);
    }
}

TEST_F(ConsoleTest, EmptyConsoleCannotBeScrolled) {
    console.print("x");
    console.print("y");
    key("PAGEUP");
    run("clear");
    EXPECT_THAT(console.getLines(), IsEmpty());
    key("PAGEUP");
    key("PAGEDOWN");
    console.mouseDown(0, 0, 4);
    console.print("fresh");
    EXPECT_EQ(console.getScroll(), console.getLastIndex()) << "follows again";
    EXPECT_THAT(shown(), ElementsAre("fresh"));
}

TEST_F(ConsoleTest, TabCompletesTheShortestFirst) {
    commands().clearCommands();
    for (const char* name : {"drop", "drawsky2"})
        note(name);
    for (const char* name : {"drawsky", "drawgrid", "drawbig"})
        vars().createOrSet(name, "", "");
    type("DR x");
    key("TAB");
    EXPECT_THAT(texts(),
                ElementsAre("    Auto Complete For:  DR x", "    Commands:", "    drawsky2",
                            "    drop", "    Variables:", "    drawbig", "    drawgrid",
                            "    drawsky", "    5 Matches For: DR x", " "));
    EXPECT_EQ(console.getInput(), "DR x") << "not shorter than the best";
    const std::vector<ConLine>& printed = console.getLines();
    EXPECT_EQ(printed[0].colour, RGBAColour(255, 205, 22));
    EXPECT_EQ(printed[2].colour, RGBAColour(255, 255, 255));
    EXPECT_EQ(printed[9].colour, RGBAColour(27, 209, 255));

    struct Case {
        const char* typed;
        const char* completed;
    };
    for (const Case& c :
         {Case{"draw", "drawbig "}, Case{"draws", "drawsky "}, Case{"drawg", "drawgrid "},
          Case{"nothing", "nothing"}, Case{"drop", "drop"}, Case{"", "drop "}}) {
        console.clearInput();
        console.clear();
        type(c.typed);
        key("TAB");
        EXPECT_EQ(console.getInput(), c.completed) << c.typed;
        EXPECT_EQ(console.getLines().empty(), std::string(c.typed) == "nothing");
    }
    console.clearInput();
    console.clear();
    type("drawg");
    key("TAB");
    EXPECT_EQ(texts()[4], "    1 Match For: drawg");
}

TEST_F(ConsoleTest, TesterShowsKindsThatCanBeHidden) {
    run("tester");
    EXPECT_THAT(shown(), ElementsAre("Debug: some debug output", "Warning: test warning"));
    EXPECT_EQ(console.getLines()[0].colour, RGBAColour(225, 0, 0));
    EXPECT_EQ(console.getLines()[1].colour, RGBAColour(0, 225, 0));
    run("con_showDebug 0");
    EXPECT_THAT(shown(), ElementsAre("Warning: test warning"));
    run("con_showWarnings 0");
    EXPECT_THAT(shown(), IsEmpty());

    run("condump");
    EXPECT_THAT(get(user() + "/condump.txt"),
                MatchesRegex("=== BEGINNING OF CONSOLE DUMP ===\n"
                             "TimeStamp: ... ... .. ..:..:.. ....\n\n\n"
                             "Warning: test warning\nDebug: some debug output\n"
                             "\n\n=== END OF CONSOLE DUMP ===\n"));
}

TEST_F(ConsoleTest, DumpReplacesAFileOfTheUserFolderOnly) {
    put(user() + "/logs/d.txt", std::string(5000, 'x'));
    console.print("one");
    run("condump logs/d.txt");
    EXPECT_THAT(get(user() + "/logs/d.txt"), testing::Not(HasSubstr("x")));
    run("condump ../escaped.txt");
    EXPECT_FALSE(std::filesystem::exists(user() + "/../escaped.txt"));
    EXPECT_THAT(texts(), ElementsAre("one")) << "nothing is reported";
}

TEST_F(ConsoleTest, PanelCoversItsPartOfTheScreen) {
    struct Case {
        const char* part;
        float height;
    };
    for (const Case& c : {Case{"0.5", 300}, Case{"0.1", 120}, Case{"1.5", 598}, Case{"1", 598},
                          Case{"word", 120}, Case{"0.333", 199}}) {
        vars().setVar("con_height", c.part);
        const auto drawn = draw();
        ASSERT_EQ(drawn.size(), 3U);
        EXPECT_EQ(drawn[0].name, "drawQuad");
        EXPECT_THAT(drawn[0].numbers, ElementsAre(0, 600, 0, 800, c.height));
        EXPECT_FALSE(drawn[0].texturing);
        EXPECT_FALSE(drawn[0].blending);
        EXPECT_EQ(drawn[1].name, "drawLine");
        EXPECT_THAT(drawn[1].numbers, ElementsAre(0, 600 - c.height, 800, 600 - c.height, 2));
        EXPECT_EQ(drawn[1].colour, RGBAColour(247, 120, 23));
        EXPECT_EQ(drawn[2].text, "]");
        EXPECT_THAT(drawn[2].numbers, ElementsAre(10, 600 - c.height + 5, 0, 14));
        EXPECT_TRUE(drawn[2].texturing);
        EXPECT_TRUE(drawn[2].blending);
    }
    vars().setVar("con_colour", "10,20,30,40");
    EXPECT_EQ(draw()[0].colour, RGBAColour(10, 20, 30, 40));
    EXPECT_FALSE(vars().findVar("con_colour")->changed);
    console.setOpen(false);
    EXPECT_THAT(draw(), IsEmpty());
}

TEST_F(ConsoleTest, LinesRiseFromTheNewestUntilTheTop) {
    vars().setVar("con_height", "0.2");
    for (int i = 0; i < 100; ++i)
        console.print("line " + std::to_string(i));
    console.printColoured("last", 1, 2, 3, 4);
    const auto drawn = draw();
    EXPECT_EQ(drawn[2].text, "last");
    EXPECT_EQ(drawn[2].colour, RGBAColour(1, 2, 3, 4));
    EXPECT_THAT(drawn[2].numbers, ElementsAre(10, 480 + 25 + 16, 0, 14));
    EXPECT_THAT(drawn[3].numbers, ElementsAre(10, 480 + 25 + 32, 0, 14));
    // The next one at 585 would be above 600 - 14 - 5.
    EXPECT_EQ(drawn.size(), 2 + 4 + 1U);
    EXPECT_THAT(shown(), ElementsAre("last", "line 99", "line 98", "line 97"))
        << "what the eye sees is what looking inside tells";
    key("PAGEUP");
    EXPECT_THAT(shown(), ElementsAre("line 99", "line 98", "line 97")) << "the mark takes a line";
    EXPECT_EQ(draw().size(), 2 + 1 + 3 + 1U);
}

TEST_F(ConsoleTest, CursorBlinksOnceASecond) {
    type("x");
    for (const auto& [ms, text] : std::vector<std::pair<std::uint32_t, std::string>>{
             {0, "]x"}, {500, "]x"}, {1, "]x_"}, {498, "]x_"}, {1, "]x"}, {501, "]x_"}}) {
        advanceVirtualTicks(ms);
        EXPECT_EQ(draw().back().text, text) << ms;
    }
}

}  // namespace
}  // namespace bc
