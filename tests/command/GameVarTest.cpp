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
    var.setString("nan");
    EXPECT_EQ(var.floatValue(), 0);
    var.setString(std::string_view(var.value()).substr(1));
    EXPECT_EQ(var.value(), "an") << "from a part of itself";
}

TEST_F(GameVarTest, ChangedTellsRealChangesOnlyAndOnChangeEverySet) {
    int told = 0;
    GameVar var;
    var.setString("Red");
    var.changed = false;
    var.onChange = [&] { ++told; };
    var.setString("rED");
    EXPECT_FALSE(var.changed) << "letter case is no change";
    EXPECT_EQ(var.value(), "rED");
    var.setInt(0);
    EXPECT_FALSE(var.changed) << "the number was 0 already";
    EXPECT_EQ(told, 2);
    var.setInt(1);
    EXPECT_TRUE(var.changed);
    var.setString("1");
    EXPECT_TRUE(var.changed) << "stays until it is read";
}

TEST_F(GameVarTest, ConsoleLinesShowAndSet) {
    vars().createOrSet("DrawSky", "0", "the sky");
    EXPECT_THAT(run("drawsky"), ElementsAre("drawsky = 0"));
    EXPECT_THAT(run("DRAWSKY 1 2 3"), IsEmpty());
    EXPECT_THAT(run("drawsky"), ElementsAre("drawsky = 1"));
    run("/* block */ drawsky 0 // note");
    EXPECT_EQ(value("drawsky"), "0");
    run("set drawsky 1; toggle drawsky");
    EXPECT_EQ(value("drawsky"), "0");
    run("  set   gravity    -500  ");
    EXPECT_EQ(vars().findVar("gravity")->floatValue(), -500);
    EXPECT_EQ(vars().findVar("gravity")->type, VarType::untyped);
    run("set word abc; toggle word");
    EXPECT_EQ(value("word"), "1");
    run("toggle word");
    EXPECT_EQ(value("word"), "0");
    EXPECT_THAT(run("set x"), ElementsAre("Invalid Usage! Proper Usage: set varname value"));
    EXPECT_THAT(run("toggle"), ElementsAre("Invalid Usage! Proper Usage: toggle varname"));
    EXPECT_THAT(run("toggle x"), IsEmpty());
    EXPECT_EQ(vars().findVar("x"), nullptr);
}

TEST_F(GameVarTest, FirstUseOfAnUndeclaredNameIsLoggedOnce) {
    EXPECT_EQ(logOf([] { (void)vars().getVar("New"); }),
              "New var has no initialised value, creating a new var\n");
    EXPECT_EQ(logOf([] { EXPECT_FALSE(vars().getVar("NEW")->changed); }), "");
    EXPECT_EQ(vars().findVar("new")->name, "new");
    EXPECT_EQ(vars().findVar("other"), nullptr);
}

TEST_F(GameVarTest, ListsByPrefixInNameOrder) {
    vars().createOrSet("drawsky", "1", "sky");
    vars().createOrSet("drawgrid", "0", "grid");
    vars().createOrSet("gravity", "-60", "down");
    EXPECT_THAT(
        run("listvars draw"),
        ElementsAre("255,205,22,255|    Variable Listings",
                    "255,255,255,255|    varname = value : description", "    drawgrid = 0 : grid",
                    "    drawsky = 1 : sky", "255,205,22,255|    Found 2 Variables"));
}

TEST_F(GameVarTest, DeclarationsGiveValueDescriptionAndType) {
    put(data() + "/data/vars.xml",
        "<any><x name='Count' value='7.9' description='how many' type='INT'/>"
        "<y name='rate' value='0.02500001' type='Float'/><z name='title' value='a b' "
        "type='string'/>"
        "<w name='odd' value='1' type='vector'/><v name='bare' value='2'/><u type='int'/></any>");
    const std::string log = logOf([] { vars().loadDeclarations("data/vars.xml"); });
    EXPECT_EQ(log,
              "Found on disk: data/vars.xml\n"
              "ERROR: no type defined in gamevars.xml for gamevar: bare\n");
    EXPECT_EQ(vars().findVar("count")->description, "how many");
    EXPECT_FALSE(vars().findVar("count")->changed);
    EXPECT_THAT(logOf([] { vars().loadDeclarations("data/none.xml"); }),
                testing::EndsWith("Could not load gamevars file: data/none.xml\n"));
    EXPECT_NE(vars().findVar(""), nullptr) << "a missing name is an empty one";

    std::ostringstream out;
    vars().writeVariables(out);
    EXPECT_EQ(out.str(), "\n\n//variables\n\n 0\n\ncount 7\n\nrate 0.025\ntitle a b\n\n");
}

TEST_F(GameVarTest, WrittenValuesAreReadBackByTheInterpreter) {
    put(data() + "/data/vars.xml",
        "<v><a name='i' value='3' type='int'/><a name='f' value='-0.5' type='float'/>"
        "<a name='s' value='Text' type='string'/></v>");
    logOf([] { vars().loadDeclarations("data/vars.xml"); });
    std::ostringstream out;
    vars().writeVariables(out);
    files::replace("data/config.txt", out.str());
    run("i 0; f 0; s none; exec config.txt");
    EXPECT_EQ(value("i"), "3");
    EXPECT_EQ(value("f"), "-0.5");
    EXPECT_EQ(value("s"), "Text");
}

}  // namespace
}  // namespace bc
