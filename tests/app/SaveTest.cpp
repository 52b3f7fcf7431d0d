// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Saves of whole runs: what goes on from one, and what is left when writing one fails.
#include "RunGame.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <utility>
#include <vector>

namespace bc {
namespace {

constexpr const char* settings = "data/config.txt";

/// The bodies and the race of a world dump, which a save brings back. Particles and messages are
/// not saved.
std::string played(const std::string& dump) {
    TiXmlDocument document;
    document.Parse(dump.c_str());
    std::string text;
    for (const char* part : {"Objects", "Race"})
        if (document.RootElement() != nullptr)
            if (const TiXmlElement* e = document.RootElement()->FirstChildElement(part)) {
                TiXmlPrinter printer;
                e->Accept(&printer);
                text += printer.CStr();
            }
    return text;
}

/// The first line that differs, of both.
std::string difference(const std::string& a, const std::string& b) {
    std::istringstream left(a);
    std::istringstream right(b);
    std::string l;
    std::string r;
    while (std::getline(left, l) && std::getline(right, r))
        if (l != r)
            break;
    return l.append("\n").append(r);
}

class SaveContinuation : public testing::TestWithParam<const char*> {};

/// The script of a run that goes on from the save "mid" of the given script: what that one does
/// after the save, as much earlier. The pass that saves simulates nothing, nor does the one that
/// loads.
std::string continuationOf(const std::string& script) {
    std::istringstream lines(RunGame::scriptLines(script + ".txt"));
    std::string text = "0 loadgame mid\n0 @move 900 380\n0 god\n";
    int savedAt = -1;
    for (std::string line; std::getline(lines, line);) {
        const std::string what = line.substr(line.find(' ') + 1);
        if (savedAt >= 0)
            text += std::to_string(std::stoi(line) - savedAt) + ' ' + what + '\n';
        else if (what == "savegame mid")
            savedAt = std::stoi(line);
    }
    return text;
}

TEST_P(SaveContinuation, IsTheSameRun) {
    const std::string script = GetParam();
    RunGame whole;
    ASSERT_EQ(whole.play(script), 0);
    const std::string saved = whole.read("saves/mid.xml");
    ASSERT_FALSE(saved.empty());

    RunGame continued;
    continued.write("saves/mid.xml", saved);
    continued.write("script.txt", continuationOf(script));
    // Another seed: the save holds the state of the random sequence.
    ASSERT_EQ(continued.run({"--headless", "--seed", "77", "--script",
                             (continued.folder() / "script.txt").string()}),
              0);
    const std::string one = played(whole.read("worlddump.xml"));
    const std::string other = played(continued.read("worlddump.xml"));
    EXPECT_GT(one.size(), 10000U);
    EXPECT_TRUE(one == other) << difference(one, other);
}

INSTANTIATE_TEST_SUITE_P(Levels, SaveContinuation,
                         testing::Values("continue_hangar", "continue_workshop",
                                         "continue_circuit"));

/// The game with an old save and old settings, about to write new ones.
void prepare(const RunGame& game) {
    game.write("saves/s.xml", "<save><old/></save>");
    game.write("saves/s.png", "old picture");
    game.write(settings, "con_height 0.3\n");
    std::filesystem::remove(game.folder() / "outputlog.txt");
}

constexpr const char* preload = "LD_PRELOAD=" FAILING_WRITES;
// A build with the address sanitizer otherwise insists on being the first library.
constexpr const char* sanitised = "ASAN_OPTIONS=verify_asan_link_order=0";

TEST(Saves, AreWholeWheneverTheProcessDies) {
    RunGame game;
    prepare(game);
    const std::vector<const char*> files = {"saves/s.xml", "saves/s.png", settings};
    const auto readAll = [&] {
        std::vector<std::string> texts(files.size());
        std::transform(files.begin(), files.end(), texts.begin(),
                       [&](const char* file) { return game.read(file); });
        return texts;
    };
    const std::vector<std::string> before = readAll();
    ASSERT_EQ(game.play("write"), 0);
    const std::vector<std::string> after = readAll();
    ASSERT_NE(before, after);

    int deaths = 0;
    for (int at = 1; at < 100; ++at) {
        prepare(game);
        game.environment = {preload, sanitised, "FAIL_HOW=die", "FAIL_AT=" + std::to_string(at)};
        const int status = game.play("write");
        for (std::size_t i = 0; i < files.size(); ++i) {
            const std::string found = game.read(files[i]);
            EXPECT_TRUE(found == before[i] || found == after[i]) << files[i] << " at " << at;
        }
        if (status == 0)
            break;
        ASSERT_EQ(status, 137);
        ++deaths;
    }
    // Each of the three files is made, written, flushed and renamed.
    EXPECT_GE(deaths, 10);
    // What a death left behind was removed by the next run.
    for (const char* file : files)
        EXPECT_FALSE(game.has(std::string(file) + ".new"));
}

TEST(Saves, AFullDiskAndAMissingFolderAreReported) {
    RunGame game;
    prepare(game);
    game.environment = {preload, sanitised, "FAIL_HOW=full", "FAIL_AT=1"};
    EXPECT_EQ(game.play("write"), 0);
    EXPECT_TRUE(game.logHas("Could not write saves/s.xml"));
    EXPECT_TRUE(game.logHas("No space left"));
    EXPECT_EQ(game.read("saves/s.xml"), "<save><old/></save>");
    EXPECT_EQ(game.read(settings), "con_height 0.3\n");

    RunGame closed;
    closed.write("saves", "a file where the folder should be");
    EXPECT_EQ(closed.play("write"), 0);
    EXPECT_TRUE(closed.logHas("of saves/s.xml"));
}

std::string replaced(std::string text, const std::string& what, const std::string& by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size())
        text.replace(at, what.size(), by);
    return text;
}

/// A save of the hangar.
std::string goodSave() {
    RunGame maker;
    EXPECT_EQ(maker.play("write"), 0);
    return maker.read("saves/s.xml");
}

TEST(Saves, UnreadableOnesLeaveTheRunningLevel) {
    const std::string good = goodSave();
    const std::string level = "currentlevel=\"hangar\"";
    RunGame game;
    game.write("saves/truncated.xml", good.substr(0, good.size() / 2));
    game.write("saves/bare.xml", "<save/>");
    game.write("saves/nolevel.xml", replaced(good, level, "currentlevel=\"gone\""));
    game.write("saves/outside.xml", replaced(good, level, "currentlevel=\"../../x\""));
    game.write("saves/nobodies.xml", replaced(good, "Objects", "Things"));
    EXPECT_EQ(game.play("bad_saves"), 0);
    EXPECT_EQ(countIn(game.log(), "Can't load save file: saves/"), 5);
    const Dump dump = game.dump("worlddump.xml");
    EXPECT_EQ(dump.value("world", "levelloaded"), "true");
    EXPECT_EQ(dump.value("world", "step"), "39");
}

TEST(Saves, OddOnesLoadWhatTheyCan) {
    const std::string good = goodSave();
    std::string crowd;
    for (int i = 0; i < 10000; ++i)
        crowd += "<P type='health' idname='h'><params entity='true' mass='0'/><verts><v origin='" +
                 std::to_string(100 + i % 1000) + ',' + std::to_string(100 + i / 10) +
                 ",0'/></verts></P>";
    const std::vector<std::pair<std::string, std::string>> saves = {
        {"unknown", replaced(good, "type=\"debugmoveable\"", "type=\"nosuch\"")},
        {"absurd", replaced(replaced(good, "health=\"100\"", "health=\"99999999999999\""),
                            "vel=\"0,0,0\"", "vel=\"1e38,nan,-inf\"")},
        {"cleanup", replaced(good, "cancleanup=\"false\"", "cancleanup=\"true\"")},
        {"ids", replaced(good, "autoid=\"", "autoid=\"-2147483649")},
        {"order", replaced(replaced(good, "turns=\"", "turns=\"+99999999,,-1,x,2,2,"), "reach=\"",
                           "reach=\"2,nan,1e30,-1,0;2,1;;9,")},
        {"crowd", replaced(good, "</Objects>", crowd + "</Objects>")},
    };
    RunGame game;
    for (const auto& [name, text] : saves) {
        ASSERT_NE(text, good) << name;
        game.write("saves/" + name + ".xml", text);
    }
    EXPECT_EQ(game.play("odd_saves"), 0);
    EXPECT_FALSE(game.logHas("Can't load save file"));
    for (const auto& [name, text] : saves) {
        const Dump dump = game.dump(name);
        EXPECT_EQ(dump.value("world", "levelloaded"), "true") << name;
        EXPECT_NE(dump.value("world", "step"), "none") << name;
        EXPECT_EQ(dump.count("nan"), 0) << name;
        EXPECT_EQ(dump.count("type=\"player\""), 1) << name;
    }
}

TEST(Saves, ABadNameOrAnUnreadableSaveKeepsNobodyDead) {
    // A refused name leaves the save before it in force; a spoiled save starts the level anew.
    for (const auto& [then, loads] :
         {std::pair("savegame ../evil", true), {"condump saves/good.xml", false}}) {
        RunGame game;
        game.provide("maps/pain.xml");
        ASSERT_EQ(game.play("revive", {{"THEN", then}}), 0) << then;
        const Dump world = game.dump("worlddump.xml");
        EXPECT_EQ(world.count("dead=\"true\""), 0) << then;
        EXPECT_EQ(world.value(Dump::craft, "health"), "100") << then;
        EXPECT_EQ(game.dump("statedump.xml").value("game", "savename"), "good") << then;
        EXPECT_EQ(game.logHas("Loading save game: saves/good.xml"), loads) << then;
    }
}

TEST(Saves, BringBackTheSkyThatThePlayerCameTo) {
    RunGame game;
    game.provide("maps/skies.xml");
    ASSERT_EQ(game.play("sky_save"), 0);
    EXPECT_EQ(game.dump("before").value("sky", "current"), "data/sky/default.xml");
    EXPECT_EQ(game.dump("after").value("sky", "current"), "data/sky/nebula.xml");
}

TEST(Saves, OlderOnesLoadAsTheyWereMeant) {
    RunGame game;
    for (const char* file : {"maps/skies.xml", "waves/w.xml", "saves/old.xml"})
        game.provide(file);
    ASSERT_EQ(game.play("old_save"), 0);
    EXPECT_TRUE(game.logHas("damage 5 amount 110 type 32 absorbed 0 health 390"));
    // The first event of the timetable was over, the second is not due yet.
    EXPECT_FALSE(game.logHas("triggered"));
}

}  // namespace
}  // namespace bc
