// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "support/ConsoleFixture.h"

#include <gmock/gmock.h>

namespace bc {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class CommandRegistryTest : public ConsoleFixture {
  protected:
    CommandRegistryTest() {
        for (const char* name : {"a", "b", "+c", "bind"})
            note(name);
    }
};

TEST_F(CommandRegistryTest, LinesAreSplitStrippedAndTokenised) {
    struct Case {
        const char* line;
        std::string calls;
    };
    // The text right after a block comment starts no other comment. A bind line keeps its
    // semicolons if it begins exactly so.
    for (const Case& c :
         {Case{"A 1 Two", "a|1|Two"}, Case{"\t\n  a  1\t2  \n\t", "a|1\t2"},
          Case{";;a;;+c 1\r;;", "a, +c|1\r"}, Case{"a 1//b;b", "a|1"}, Case{"a / 1/2", "a|/|1/2"},
          Case{"a /* x; y // */; b", "a, b"}, Case{"a 1/* x */2", "a|12"}, Case{"/*/a", "a"},
          Case{"a/* ;b", "a"}, Case{"a 1/* x */", "a|1"}, Case{"a 1/* x *//2", "a|1/2"},
          Case{"a 1/* x *//* y */", "a|1/*|y|*/"}, Case{"/* a */", ""},
          Case{"  bind f a;b; a", "bind|f|a;b;|a"}, Case{"bind;a", "bind, a"},
          Case{"bind f /* x */;b // b", "bind|f|;b"}, Case{"// a", ""},
          Case{"Bind f a;b", "bind|f|a, b"}, Case{"/**/bind f a;b", "bind|f|a, b"}}) {
        calls.clear();
        EXPECT_THAT(run(c.line), IsEmpty()) << c.line;
        std::string all;
        for (const std::string& call : calls)
            all += (all.empty() ? "" : ", ") + call;
        EXPECT_EQ(all, c.calls) << c.line;
    }
}

TEST_F(CommandRegistryTest, UnknownNamesAreReportedAndTheRestRuns) {
    EXPECT_THAT(run("Nonsense 1; a"), ElementsAre("Unknown Command: Nonsense"));
    EXPECT_THAT(run("a; ;b"), ElementsAre("Unknown Command: "));
    EXPECT_THAT(run("   "), IsEmpty());
    EXPECT_THAT(calls, ElementsAre("a", "a", "b"));
    EXPECT_EQ(logOf([] { commands().execute("nonsense"); }), "Unknown Command: nonsense\n");
}

TEST_F(CommandRegistryTest, NestedExecutionLeavesTheCallerItsArguments) {
    const auto outer = [this] {
        commands().execute("a inner; b");
        calls.push_back("outer|" + commands().arg(0) + "|" + commands().arg(1, "none"));
    };
    commands().registerCommand("", "outer", outer);
    commands().registerCommand("", "OUTER", [] { FAIL() << "the first registration counts"; });
    run("outer 1; a after");
    EXPECT_THAT(calls, ElementsAre("a|inner", "b", "outer|1|none", "a|after"));
    EXPECT_EQ(commands().argCount(), 0);
    commands().registerCommand("", "clear", [] { commands().clearCommands(); });
    run("clear; a");
    EXPECT_THAT(lines, ElementsAre("Unknown Command: a"));
}

TEST_F(CommandRegistryTest, ScriptRunsLineByLine) {
    put(data() + "/data/s.txt", "a 1; b\n\n// c\na /* open\nb\nbind x a;b\na 1\r\na\r\n");
    EXPECT_THAT(run("exec s.txt; a last"),
                ElementsAre("Found: data/s.txt", "Unknown Command: a\r", "executed data/s.txt"));
    EXPECT_THAT(calls, ElementsAre("a|1", "b", "a", "b", "bind|x|a;b", "a|1\r", "a|last"));

    put(data() + "/data/empty.txt", "");
    put(data() + "/outside.txt", "b");
    EXPECT_THAT(run("exec"), ElementsAre("Usage: exec <filename>", "e.g.: exec config.cfg"));
    for (const char* name : {"none.txt", "empty.txt", "../outside.txt"})
        EXPECT_THAT(run(std::string("exec ") + name + "; a"),
                    ElementsAre(std::string("Couldn't exec data/") + name));
    EXPECT_EQ(calls.back(), "a");
}

TEST_F(CommandRegistryTest, ScriptsThatRunScriptsAreBounded) {
    put(data() + "/data/self.txt", "a in\nexec self.txt\na out\n");
    EXPECT_THAT(run("exec self.txt; b"), Contains(HasSubstr("nested deeper than 16 levels")));
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "a|in"), 16);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "a|out"), 16);
    EXPECT_EQ(calls.back(), "b");

    calls.clear();
    put(data() + "/data/many.txt", "a\nexec many.txt\nexec many.txt\nexec many.txt\n");
    EXPECT_THAT(run("exec many.txt"), Contains(HasSubstr("more than 1024 scripts")));
    EXPECT_EQ(calls.size(), 1024U);
    put(data() + "/data/fine.txt", "a fine\n");
    EXPECT_THAT(run("exec fine.txt"), Contains("executed data/fine.txt")) << "counts anew";
}

TEST_F(CommandRegistryTest, ListsTheCommandsThatBeginWithTheArgument) {
    EXPECT_THAT(run("listcmds list"), ElementsAre("255,205,22,255|    Command Listings",
                                                  "255,255,255,255|    cmdname : description",
                                                  "    listcmds : list all commands",
                                                  "    listvars : list all the variables",
                                                  "255,205,22,255|    Found 2 Commands"));
    EXPECT_THAT(run("listcmds L"), Contains("255,205,22,255|    Found 0 Commands"));
    EXPECT_THAT(run("listcmds"), Contains("255,205,22,255|    Found 9 Commands"));
}

}  // namespace
}  // namespace bc
