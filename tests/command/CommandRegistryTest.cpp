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
using Lines = std::vector<std::string>;

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
        Lines calls;
    };
    const std::vector<Case> cases = {
        {"a", {"a"}},
        {"A 1 Two", {"a|1|Two"}},
        {"   a    1   2   ", {"a|1|2"}},
        {"\t\n a 1\t2 \n\t", {"a|1\t2"}},
        {"a 1\r", {"a|1\r"}},
        {"a;b", {"a", "b"}},
        {";;a;;b;;", {"a", "b"}},
        {"+c;a", {"+c", "a"}},
        // Comments.
        {"a 1 // b", {"a|1"}},
        {"a 1//b;b", {"a|1"}},
        {"// a", {}},
        {"a /", {"a|/"}},
        {"a 1/2", {"a|1/2"}},
        {"/* a */ b", {"b"}},
        {"a /* x; y // */; b", {"a", "b"}},
        {"a 1/* x */2", {"a|12"}},
        {"/*/a", {"a"}},
        {"/**/a", {"a"}},
        {"a /* open ; b", {"a"}},
        {"a 1/* x */", {"a|1"}},
        // What stands right behind a block comment begins no other comment.
        {"a 1/* x *//2", {"a|1/2"}},
        {"a 1/* x *//* y */", {"a|1/*|y|*/"}},
        {"a/* x */;b", {"a", "b"}},
        // A bind line keeps its semicolons, but only written exactly so.
        {"bind f a;b", {"bind|f|a;b"}},
        {"  bind f a;b; a", {"bind|f|a;b;|a"}},
        {"bind f a // b", {"bind|f|a"}},
        {"bind f /* x */;b", {"bind|f|;b"}},
        {"Bind f a;b", {"bind|f|a", "b"}},
        {"bind;a", {"bind", "a"}},
        {"/**/bind f a;b", {"bind|f|a", "b"}},
    };
    for (const Case& c : cases) {
        calls.clear();
        EXPECT_THAT(run(c.line), IsEmpty()) << c.line;
        EXPECT_EQ(calls, c.calls) << c.line;
    }
}

TEST_F(CommandRegistryTest, UnknownNamesAreToldToUserAndLog) {
    EXPECT_THAT(run("Nonsense 1; a"), ElementsAre("Unknown Command: Nonsense"));
    EXPECT_THAT(calls, ElementsAre("a"));
    EXPECT_THAT(run("a; ;b"), ElementsAre("Unknown Command: "));
    EXPECT_THAT(run("   "), IsEmpty()) << "trimmed to nothing";
    EXPECT_EQ(logOf([] { commands().execute("nonsense"); }), "Unknown Command: nonsense\n");
}

TEST_F(CommandRegistryTest, FirstRegistrationOfANameWins) {
    commands().registerCommand("other", "A", [this] { calls.emplace_back("other"); });
    run("a");
    EXPECT_THAT(calls, ElementsAre("a"));
    EXPECT_EQ(commands().findCommand("A")->description, "");
    EXPECT_EQ(commands().findCommand("nonsense"), nullptr);
}

TEST_F(CommandRegistryTest, NestedExecutionLeavesTheCallerAlone) {
    commands().registerCommand("", "outer", [this] {
        commands().execute("a inner; b");
        commands().execute("");
        calls.push_back("outer|" + commands().arg(0) + "|" + commands().arg(1, "none"));
    });
    run("outer 1; a after");
    EXPECT_THAT(calls, ElementsAre("a|inner", "b", "outer|1|none", "a|after"));
    EXPECT_EQ(commands().argCount(), 0);
}

TEST_F(CommandRegistryTest, ScriptRunsLineByLine) {
    put(data() + "/data/s.txt", "a 1; b\n\n\n// c\na /* open\nb\nbind x a;b\n");
    EXPECT_THAT(run("exec s.txt; a last"), ElementsAre("Found: data/s.txt", "executed data/s.txt"));
    EXPECT_THAT(calls, ElementsAre("a|1", "b", "a", "b", "bind|x|a;b", "a|last"));
}

TEST_F(CommandRegistryTest, ScriptLineKeepsItsCarriageReturn) {
    put(data() + "/data/s.txt", "a 1\r\na\r\n");
    EXPECT_THAT(run("exec s.txt"), Contains("Unknown Command: a\r"));
    EXPECT_THAT(calls, ElementsAre("a|1\r"));
}

TEST_F(CommandRegistryTest, ScriptThatCannotBeReadIsTold) {
    put(data() + "/data/empty.txt", "");
    put(data() + "/outside.txt", "a");
    EXPECT_THAT(run("exec"), ElementsAre("Usage: exec <filename>", "e.g.: exec config.cfg"));
    for (const char* name : {"none.txt", "empty.txt", "../outside.txt"})
        EXPECT_THAT(run(std::string("exec ") + name + "; b"),
                    ElementsAre(std::string("Couldn't exec data/") + name));
    EXPECT_THAT(calls, ElementsAre("b", "b", "b"));
}

TEST_F(CommandRegistryTest, ScriptsThatRunThemselvesStopAfterSixteenLevels) {
    put(data() + "/data/self.txt", "a in\nexec self.txt\na out\n");
    EXPECT_THAT(run("exec self.txt; b"), Contains(HasSubstr("nested deeper than 16 levels")));
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "a|in"), 16);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "a|out"), 16);
    EXPECT_EQ(calls.back(), "b");

    calls.clear();
    put(data() + "/data/fine.txt", "a fine\n");
    EXPECT_THAT(run("exec fine.txt"), Contains("executed data/fine.txt"))
        << "the count starts anew";
}

TEST_F(CommandRegistryTest, ScriptsThatRunEachOtherManyTimesAreStopped) {
    std::string many;
    for (int i = 0; i < 50; ++i)
        many += "exec many.txt\n";
    put(data() + "/data/many.txt", many + "a\n");
    EXPECT_THAT(run("exec many.txt"), Contains(HasSubstr("more than 1024 scripts")));
    EXPECT_LE(calls.size(), 1024U);
}

TEST_F(CommandRegistryTest, ListsWhatBeginsWithTheArgument) {
    commands().clearCommands();
    commands().registerBuiltinCommands();
    vars().registerBuiltinCommands();
    EXPECT_THAT(
        run("listcmds"),
        ElementsAre("255,205,22,255|    Command Listings",
                    "255,255,255,255|    cmdname : description", "    exec : execute a script file",
                    "    listcmds : list all commands", "    listvars : list all the variables",
                    "    set : set a variable", "    toggle : toggle a variable",
                    "255,205,22,255|    Found 5 Commands"));
    EXPECT_THAT(run("listcmds list"), Contains("255,205,22,255|    Found 2 Commands"));
    EXPECT_THAT(run("listcmds L"), Contains("255,205,22,255|    Found 0 Commands"))
        << "names are lower case, the argument is compared as it stands";
}

TEST_F(CommandRegistryTest, HugeLinesAreRunWhole) {
    std::string line;
    for (int i = 0; i < (1 << 17); ++i)
        line += "a/**/ 1;";
    run(line);
    EXPECT_EQ(calls.size(), std::size_t{1} << 17);
    const std::string name(1 << 20, 'x');
    EXPECT_THAT(run(name), ElementsAre("Unknown Command: " + name));
}

}  // namespace
}  // namespace bc
