// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Whole runs of the program without a window, looked at through what it leaves behind.
#include "RunGame.h"

#include "support/Places.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

namespace bc {
namespace {

using testing::Test;

std::string attribute(const std::string& xmlText, const char* element, const char* name) {
    TiXmlDocument document;
    document.Parse(xmlText.c_str());
    const TiXmlElement* root = document.RootElement();
    if (root == nullptr)
        return {};
    const TiXmlElement* e = element == nullptr ? root : root->FirstChildElement(element);
    const char* value = e != nullptr ? e->Attribute(name) : nullptr;
    return value != nullptr ? value : "";
}

/// The player's attribute of a world dump: it has the numeric id 1.
std::string playerState(const std::string& dump, const char* name) {
    TiXmlDocument document;
    document.Parse(dump.c_str());
    const TiXmlElement* objects = document.RootElement() != nullptr
                                      ? document.RootElement()->FirstChildElement("Objects")
                                      : nullptr;
    if (objects == nullptr)
        return {};
    for (const auto* p = objects->FirstChildElement(); p != nullptr; p = p->NextSiblingElement()) {
        const char* type = p->Attribute("type");
        const TiXmlElement* custom = p->FirstChildElement("custom");
        if (type != nullptr && std::string(type) == "player" && custom != nullptr)
            return custom->Attribute(name) != nullptr ? custom->Attribute(name) : "";
    }
    return {};
}

TEST(Program, SaysItsOptionsAndRefusesOthers) {
    RunGame game;
    EXPECT_EQ(game.run({"--help"}), 0);
    EXPECT_EQ(game.run({"--version"}), 0);
    EXPECT_FALSE(game.has("outputlog.txt"));
    EXPECT_EQ(game.run({"--bogus"}), 2);
    EXPECT_NE(game.standardError().find("--bogus"), std::string::npos);
    game.data = game.folder();
    EXPECT_EQ(game.headless({"--frames", "1"}), 2);
    EXPECT_NE(game.standardError().find("data"), std::string::npos);
}

TEST(Program, AStartThatFailsLeavesTheSettings) {
    RunGame game;
    game.data = game.folder();
    game.write("data/gamevars.xml", "<gamevars/>");
    game.write("data/config.txt", "bind k pause\n");
    EXPECT_EQ(game.headless({"--frames", "1"}), 0);
    EXPECT_NE(game.log().find("Error Initialising font renderer"), std::string::npos);
    EXPECT_NE(game.standardError().find("fonts"), std::string::npos);
    EXPECT_EQ(game.read("data/config.txt"), "bind k pause\n");
}

TEST(Program, RunsALevelAndWritesWhatItIsAsked) {
    RunGame game;
    EXPECT_EQ(game.headless({"--frames", "400", "+map", "hangar", "+playerinfo"}), 0)
        << game.standardError();
    EXPECT_NE(game.read("playerinfo.txt").find("Current Level: hangar"), std::string::npos);
    EXPECT_NE(game.log().find("AVG FPS:"), std::string::npos);
    EXPECT_TRUE(game.has("data/config.txt"));
}

TEST(Program, EveryLevelThatShipsIsWhole) {
    const char* complaints[] = {"FAILED",       "Failed",  "Could not load",       "Couldn't find",
                                "Defaulting",   "Refused", "no initialised value", "Too many",
                                "t been loaded"};
    int levels = 0;
    for (const auto& file : std::filesystem::directory_iterator(test::gamePath("") + "maps")) {
        const std::string level = file.path().stem().string();
        RunGame game;
        EXPECT_EQ(game.headless({"--frames", "200", "+map", level}), 0) << level;
        const std::string log = game.log();
        for (const char* complaint : complaints)
            EXPECT_EQ(log.find(complaint), std::string::npos) << level << ": " << complaint;
        ++levels;
    }
    EXPECT_GE(levels, 2);
}

constexpr const char* flight =
    "0 map hangar\n"
    "1 @move 700 300\n"
    "2 +moveright\n"
    "60 -moveright\n"
    "60 +moveup\n"
    "120 -moveup\n"
    "120 +moveleft\n"
    "150 @key SPACE\n"
    "160 @keyup SPACE\n"
    "220 -moveleft\n"
    "300 dumpworld\n"
    "300 dumpstate\n"
    "301 dumpframe\n"
    "302 dumpquadtree\n";

TEST(Program, TheSameScriptIsTheSameRun) {
    RunGame first;
    RunGame second;
    for (RunGame* game : {&first, &second}) {
        game->script(flight);
        ASSERT_EQ(game->headless({"--frames", "304"}), 0) << game->standardError();
    }
    for (const char* name :
         {"worlddump.xml", "statedump.xml", "framedump.txt", "quadtreedump.txt"}) {
        EXPECT_FALSE(first.read(name).empty()) << name;
        EXPECT_EQ(first.read(name), second.read(name)) << name;
    }
    EXPECT_EQ(attribute(first.read("worlddump.xml"), nullptr, "step"), "299");
}

TEST(Program, TheCraftAnswersItsKeys) {
    RunGame game;
    game.script(
        "0 map hangar\n1 set gravity 0\n1 dumpworld a.xml\n"
        "2 @key D\n22 dumpworld b.xml\n22 @keyup D\n23 dumpworld c.xml\n"
        "24 @key A\n64 dumpworld d.xml\n");
    ASSERT_EQ(game.headless({"--frames", "66"}), 0);
    const auto x = [&](const char* file, const char* what) {
        return std::stof(playerState(game.read(file), what));
    };
    EXPECT_FLOAT_EQ(x("a.xml", "vel"), 0);
    EXPECT_GT(x("b.xml", "vel"), 50);
    EXPECT_GT(x("b.xml", "pos"), x("a.xml", "pos"));
    EXPECT_LE(x("c.xml", "vel"), x("b.xml", "vel") + 8);
    EXPECT_LT(x("d.xml", "vel"), 0);
}

TEST(Program, TheConsoleTakesLinesWhileTheGameRuns) {
    RunGame game;
    game.script(
        "0 map hangar\n1 @key `\n1 @keyup `\n2 @type version\n3 @key RETURN\n"
        "4 @type drawsk\n5 @key TAB\n5 dumpstate\n7 condump\n8 @key `\n"
        "8 dumpstate closed.xml\n");
    ASSERT_EQ(game.headless({"--frames", "10"}), 0);
    const std::string state = game.read("statedump.xml");
    EXPECT_EQ(attribute(state, "console", "open"), "true");
    EXPECT_EQ(attribute(state, "console", "input"), "drawsky ");
    EXPECT_EQ(attribute(state, "input", "target"), "console");
    EXPECT_NE(game.read("condump.txt").find("Game Version: 105 :  Full"), std::string::npos);
    EXPECT_EQ(attribute(game.read("closed.xml"), "input", "target"), "game");
}

TEST(Program, SettingsComeBackAtTheNextStart) {
    RunGame game;
    EXPECT_EQ(game.headless({"--frames", "2", "+drawsky", "0", "+bind", "k", "pause", "+set",
                             "con_height", "0.7"}),
              0);
    EXPECT_EQ(game.headless({"--frames", "3", "+writeconfig", "mine.txt"}), 0);
    const std::string mine = game.read("mine.txt");
    EXPECT_NE(mine.find("generated by the user command"), std::string::npos);
    EXPECT_NE(mine.find("\nbind k pause\n"), std::string::npos);
    EXPECT_NE(mine.find("\ndrawsky 0\n"), std::string::npos);
    EXPECT_NE(mine.find("\ncon_height 0.7\n"), std::string::npos);
}

TEST(Program, AWindowSizeOfTheCommandLineIsForOneRun) {
    RunGame game;
    game.write("data/config.txt", "vidwidth 900\nvidheight 700\nvidfullscreen 1\nfirstrun 1\n");
    const std::vector<std::string> once = {"--frames", "1", "--window", "640x480"};
    EXPECT_EQ(game.headless(once), 0);
    for (const char* line :
         {"\nvidwidth 900\n", "\nvidheight 700\n", "\nvidfullscreen 1\n", "\nfirstrun 1\n"})
        EXPECT_NE(game.read("data/config.txt").find(line), std::string::npos) << line;
    std::vector<std::string> changed = once;
    changed.insert(changed.end(), {"+set", "vidwidth", "800"});
    EXPECT_EQ(game.headless(changed), 0);
    EXPECT_NE(game.read("data/config.txt").find("\nvidwidth 800\n"), std::string::npos);
}

TEST(Program, ABadLevelLeavesTheRunningOne) {
    RunGame game;
    game.write("maps/broken.xml", "<level><Objects><P type=");
    game.write("maps/binary.xml", std::string("\x89PNG\0\1\2", 7));
    game.write("maps/empty.xml", "");
    std::string deep;
    for (int i = 0; i < 50000; ++i)
        deep += "<a>";
    game.write("maps/deep.xml", deep);
    game.write("maps/odd.xml",
               "<level><Objects><P type='nosuchtype' idname='n'/>"
               "<P type='default'><params solid='true'/><verts><v origin='1e30,nan'/>"
               "<v origin='5,inf'/></verts></P>"
               "<P type='default'><params solid='true'/><verts><v origin='1,1'/></verts></P>"
               "</Objects></level>");
    game.script(
        "0 map hangar\n10 map broken\n11 map binary\n12 map empty\n13 map deep\n"
        "14 map nowhere\n15 map ../../etc/passwd\n20 dumpstate before.xml\n"
        "21 map odd\n30 dumpstate after.xml\n30 dumpworld\n");
    ASSERT_EQ(game.headless({"--frames", "32"}), 0) << game.standardError();
    EXPECT_EQ(attribute(game.read("before.xml"), "game", "currentlevel"), "hangar");
    EXPECT_EQ(attribute(game.read("before.xml"), "game", "levelloaded"), "true");
    EXPECT_EQ(attribute(game.read("after.xml"), "game", "currentlevel"), "odd");
    EXPECT_NE(game.log().find("Could not load level file: maps/broken.xml"), std::string::npos);
    EXPECT_NE(game.log().find("Defaulting to Body for: nosuchtype"), std::string::npos);
    EXPECT_EQ(game.read("worlddump.xml").find("nan"), std::string::npos);
}

TEST(Program, PauseStopsTheLevelClock) {
    RunGame game;
    game.script(
        "0 map hangar\n38 playsound data/sounds/effects/explosion.wav\n"
        "40 pause\n41 dumpworld a.xml\n41 dumpstate playing.xml\n"
        "60 savegame\n80 dumpworld b.xml\n80 pause\n90 dumpworld c.xml\n90 +showmap\n"
        "179 dumpstate over.xml\n");
    ASSERT_EQ(game.headless({"--frames", "180"}), 0);
    const auto time = [&](const char* file) {
        return std::stof(attribute(game.read(file), nullptr, "leveltime"));
    };
    EXPECT_EQ(attribute(game.read("a.xml"), nullptr, "paused"), "true");
    EXPECT_FLOAT_EQ(time("a.xml"), time("b.xml"));
    EXPECT_GT(time("c.xml"), time("b.xml"));
    EXPECT_LT(time("c.xml"), time("b.xml") + 400);
    // Sounds end meanwhile, and are no longer counted.
    EXPECT_EQ(attribute(game.read("playing.xml"), "sound", "playingcount"), "2");
    EXPECT_EQ(attribute(game.read("over.xml"), "sound", "playingcount"), "0");
}

TEST(Program, AScriptThatRunsItselfEnds) {
    RunGame game;
    game.write("data/loop.txt", "exec loop.txt\n");
    game.write("data/autoexec.txt", "set drawtimer 1; exec loop.txt\n");
    EXPECT_EQ(game.headless({"--frames", "3"}), 0);
    EXPECT_NE(game.read("data/config.txt").find("\ndrawtimer 1\n"), std::string::npos);
}

TEST(Program, FrameTimesAreCutIntoSteps) {
    struct Case {
        const char* frameMs;
        const char* frames;
        const char* steps;
        const char* particleSteps;
    };
    // The map is loaded before the first pass, whose clock is already one frame further. Single
    // precision decides where a step falls: of a long frame's ten steps the last comes a frame
    // later.
    const Case cases[] = {
        {"100", "2", "4", "12"}, {"2000", "2", "9", "29"}, {"16", "2", "0", "1"},
        {"17", "2", "0", "2"},   {"25", "2", "1", "2"},
    };
    for (const Case& c : cases) {
        RunGame game;
        game.script("1 dumpstate\n");
        ASSERT_EQ(game.headless({"--frame-ms", c.frameMs, "--frames", c.frames, "+map", "hangar"}),
                  0);
        const std::string state = game.read("statedump.xml");
        EXPECT_EQ(attribute(state, "game", "steps"), c.steps) << c.frameMs;
        EXPECT_EQ(attribute(state, "game", "particlesteps"), c.particleSteps) << c.frameMs;
    }
}

}  // namespace
}  // namespace bc
