// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "support/ConsoleFixture.h"

#include <gmock/gmock.h>

#include <sstream>

namespace bc {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GameVarTest : public ConsoleFixture {};

TEST_F(GameVarTest, NumbersFollowTheTextAndBack) {
    GameVar var;
    var.setString("12.75abc");
    EXPECT_EQ(var.intValue(), 12);
    EXPECT_EQ(var.floatValue(), 12.75F);
    var.setInt(-3);
    EXPECT_EQ(var.value(), "-3");
    EXPECT_EQ(var.floatValue(), -3);
    var.setIntOnly(9);
    EXPECT_EQ(var.intValue(), 9);
    EXPECT_EQ(var.value(), "-3");
    var.setString(std::string_view(var.value()).substr(1));
    EXPECT_EQ(var.value(), "3") << "from a part of itself";
    EXPECT_EQ(var.intValue(), 3);
}

TEST_F(GameVarTest, ChangedNeedsAnotherValueAndOnChangeAnySet) {
    int told = 0;
    GameVar var;
    var.setString("Red");
    var.changed = false;
    var.onChange = [&] { ++told; };
    var.setString("rED");
    EXPECT_EQ(var.value(), "rED");
    var.setInt(0);
    EXPECT_FALSE(var.changed) << "neither case nor the number 0 is a change";
    EXPECT_EQ(told, 2);
    var.setInt(1);
    var.setString("1");
    EXPECT_TRUE(var.changed) << "stays until it is read";
}

TEST_F(GameVarTest, ConsoleLinesShowAndSet) {
    EXPECT_FALSE(vars().createOrSet("DrawSky", "0", "the sky")->changed);
    EXPECT_EQ(logOf([] { (void)vars().getVar("Word"); }),
              "Word var has no initialised value, creating a new var\n");
    EXPECT_EQ(logOf([] { (void)vars().getVar("WORD"); }), "");
    EXPECT_THAT(run("DRAWSKY 1 2 3"), IsEmpty());
    EXPECT_THAT(run("drawsky"), ElementsAre("drawsky = 1"));
    EXPECT_EQ(logOf([] { commands().execute("drawsky"); }), "drawsky = 1\n");
    run("toggle DrawSky; set gravity -500; set word abc; toggle word");
    EXPECT_EQ(value("drawsky"), "0");
    EXPECT_EQ(vars().findVar("Gravity")->floatValue(), -500);
    EXPECT_EQ(value("word"), "1");
    EXPECT_THAT(run("set x"), ElementsAre("Invalid Usage! Proper Usage: set varname value"));
    EXPECT_THAT(run("toggle"), ElementsAre("Invalid Usage! Proper Usage: toggle varname"));
    EXPECT_THAT(run("toggle x"), IsEmpty());
    EXPECT_EQ(vars().findVar("x"), nullptr);
    vars().createOrSet("drawgrid", "0", "grid");
    EXPECT_THAT(
        run("listvars draw"),
        ElementsAre("255,205,22,255|    Variable Listings",
                    "255,255,255,255|    varname = value : description", "    drawgrid = 0 : grid",
                    "    drawsky = 0 : the sky", "255,205,22,255|    Found 2 Variables"));
}

TEST_F(GameVarTest, DeclaredVariablesAreWrittenAndReadBackByTheInterpreter) {
    put(data() + "/data/vars.xml",
        "<any><x name='Count' value='1' description='how many' type='INT'/>"
        "<x name='COUNT' value='7.9' description='again' type='int'/>"
        "<y name='rate' value='-0.02500001' type='Float'/>"
        "<z name='title' value='Text' type='string'/>"
        "<w name='odd' value='1' type='vector'/><v name='bare' value='2'/><u type='int'/></any>");
    const std::string log = logOf([] { vars().loadDeclarations("data/vars.xml"); });
    EXPECT_EQ(log,
              "Found on disk: data/vars.xml\n"
              "ERROR: no type defined in gamevars.xml for gamevar: bare\n");
    EXPECT_EQ(vars().findVar("count")->description, "how many");
    EXPECT_THAT(logOf([] { vars().loadDeclarations("data/none.xml"); }),
                testing::EndsWith("Could not load gamevars file: data/none.xml\n"));
    std::ostringstream out;
    vars().writeVariables(out);
    EXPECT_EQ(out.str(), "\n\n//variables\n\n 0\n\ncount 7\n\nrate -0.025\ntitle Text\n\n");
    files::replace("data/config.txt", out.str());
    run("count 0; rate 0; title none; exec config.txt");
    EXPECT_EQ(value("count") + value("rate") + value("title"), "7-0.025Text");
}

}  // namespace
}  // namespace bc
