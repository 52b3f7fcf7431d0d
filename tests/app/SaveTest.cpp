// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Saves of whole runs: what goes on from one, and what is left when writing one fails.
#include "RunGame.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace bc {
namespace {

constexpr const char* settings = "data/config.txt";

/// The bodies and the race of a world dump, which is what a save is to bring back. Pictures of
/// what happens (particles, messages) are not.
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

/// The first line that differs, of either; the last one when the shorter is the longer's beginning.
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

struct Continuation {
    const char* level;
    /// Passes before and after the save.
    const char* before;
    int savedAt;
    const char* after;
    int end;
};

class SaveContinuation : public testing::TestWithParam<Continuation> {};

// The one run saves at a pass and goes on; the other starts from the save. The pass that saves
// simulates nothing, nor does the one that loads.
TEST_P(SaveContinuation, IsTheSameRun) {
    const Continuation& c = GetParam();
    const auto shifted = [&](int by) {
        std::istringstream lines(c.after);
        std::string text;
        int pass = 0;
        for (std::string rest; lines >> pass && std::getline(lines, rest);)
            text += std::to_string(pass + by) + rest + '\n';
        return text + std::to_string(c.end + by) + " dumpworld\n";
    };
    RunGame whole;
    const std::string aim = "0 @move 900 380\n0 god\n";
    whole.script(aim + c.before + std::to_string(c.savedAt) + " savegame mid\n" +
                 shifted(c.savedAt));
    ASSERT_EQ(whole.headless({"--frames", std::to_string(c.savedAt + c.end + 1), "+map", c.level}),
              0);
    const std::string saved = whole.read("saves/mid.xml");
    ASSERT_FALSE(saved.empty());

    RunGame continued;
    continued.write("saves/mid.xml", saved);
    continued.script("0 loadgame mid\n" + aim + shifted(0));
    // Another seed: the save knows where the sequence was.
    ASSERT_EQ(continued.run({"--headless", "--seed", "77", "--frames", std::to_string(c.end + 1)}),
              0);
    const std::string one = played(whole.read("worlddump.xml"));
    const std::string other = played(continued.read("worlddump.xml"));
    EXPECT_GT(one.size(), 10000U);
    EXPECT_TRUE(one == other) << difference(one, other);
}

constexpr const char* fightingOn =
    "10 +moveright\n60 -moveright\n61 +attack\n90 -attack\n100 +moveup\n130 -moveup\n";

INSTANTIATE_TEST_SUITE_P(
    Levels, SaveContinuation,
    testing::Values(
        // A swarm, rockets and grenades in the air, crates falling.
        Continuation{
            "hangar",
            "0 give all\n4 +moveright\n40 -moveright\n41 useitem rocketlauncher\n"
            "42 +attack\n60 -attack\n62 +moveup\n85 -moveup\n"
            "86 +fire 10\n88 -fire 10\n90 useitem grenadelauncher\n91 +attack\n99 -attack\n",
            100, fightingOn, 300},
        // Doors moving, pickups away, messages and waves to come, a race under way.
        Continuation{"workshop",
                     "5 warpto take_health\n10 warpto take_cash\n16 warpto take_quad\n"
                     "22 warpto take_armour\n28 warpto take_shotgun\n34 warpto slow_switch\n"
                     "40 warpto group_trigger\n46 warpto chain_trigger\n52 warpto trigger_again\n"
                     "58 warpto messenger_trigger\n64 warpto wave_switch\n70 warpto barrel_1\n"
                     "76 warpto drop_switch\n82 warpto switch_again\n88 warpto switch_door\n"
                     "94 warpto race_start\n100 warpto race_check\n101 killvelocity\n"
                     "104 +attack\n116 -attack\n",
                     118, fightingOn, 500},
        // In the middle of pushing a block.
        Continuation{"circuit", "4 warpto blocks_start\n10 +moveright\n38 -moveright\n", 40,
                     "1 +moveright\n60 -moveright\n70 +moveleft\n110 -moveleft\n", 250}));

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

constexpr const char* writing = "0 map hangar\n1 set con_height 0.7\n2 savegame s\n";

TEST(Saves, AreWholeWheneverTheProcessDies) {
    RunGame game;
    game.script(writing);
    prepare(game);
    const std::vector<const char*> files = {"saves/s.xml", "saves/s.png", settings};
    const auto readAll = [&] {
        std::vector<std::string> texts(files.size());
        std::transform(files.begin(), files.end(), texts.begin(),
                       [&](const char* file) { return game.read(file); });
        return texts;
    };
    const std::vector<std::string> before = readAll();
    ASSERT_EQ(game.headless({"--frames", "5"}), 0);
    const std::vector<std::string> after = readAll();
    ASSERT_NE(before, after);

    int deaths = 0;
    for (int at = 1; at < 100; ++at) {
        prepare(game);
        game.environment = {preload, sanitised, "FAIL_HOW=die", "FAIL_AT=" + std::to_string(at)};
        const int status = game.headless({"--frames", "5"});
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
    // What a death left behind is in nobody's way.
    for (const char* file : files)
        EXPECT_FALSE(game.has(std::string(file) + ".new"));
}

TEST(Saves, AFullDiskAndAFolderThatIsNoneAreToldOf) {
    RunGame game;
    game.script(writing);
    prepare(game);
    game.environment = {preload, sanitised, "FAIL_HOW=full", "FAIL_AT=1"};
    EXPECT_EQ(game.headless({"--frames", "5"}), 0);
    EXPECT_NE(game.log().find("Could not write saves/s.xml"), std::string::npos);
    EXPECT_NE(game.log().find("No space left"), std::string::npos);
    EXPECT_EQ(game.read("saves/s.xml"), "<save><old/></save>");
    EXPECT_EQ(game.read(settings), "con_height 0.3\n");

    RunGame closed;
    closed.write("saves", "a file where the folder should be");
    closed.script(writing);
    EXPECT_EQ(closed.headless({"--frames", "5"}), 0);
    EXPECT_NE(closed.log().find("of saves/s.xml"), std::string::npos);
}

std::string replaced(std::string text, const std::string& what, const std::string& by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size())
        text.replace(at, what.size(), by);
    return text;
}

TEST(Saves, BadOnesLeaveTheRunningLevelOrLoadWhatTheyCan) {
    RunGame maker;
    maker.script("0 map hangar\n2 savegame s\n");
    ASSERT_EQ(maker.headless({"--frames", "4"}), 0);
    const std::string good = maker.read("saves/s.xml");
    std::string crowd;
    for (int i = 0; i < 10000; ++i)
        crowd += "<P type='health' idname='h'><params entity='true' mass='0'/><verts><v origin='" +
                 std::to_string(100 + i % 1000) + ',' + std::to_string(100 + i / 10) +
                 ",0'/></verts></P>";
    struct Case {
        const char* name;
        std::string text;
        bool loads;
    };
    const std::vector<Case> cases = {
        {"empty", "", false},
        {"truncated", good.substr(0, good.size() / 2), false},
        {"binary", std::string("\x89PNG\0\1", 6), false},
        {"bare", "<save/>", false},
        {"nolevel", replaced(good, "currentlevel=\"hangar\"", "currentlevel=\"gone\""), false},
        {"outside", replaced(good, "currentlevel=\"hangar\"", "currentlevel=\"../../x\""), false},
        {"nobodies", replaced(good, "Objects", "Things"), false},
        {"unknown", replaced(good, "type=\"debugmoveable\"", "type=\"nosuch\""), true},
        {"absurd",
         replaced(replaced(good, "health=\"100\"", "health=\"99999999999999\""), "vel=\"0,0,0\"",
                  "vel=\"1e38,nan,-inf\""),
         true},
        {"cleanup", replaced(good, "cancleanup=\"false\"", "cancleanup=\"true\""), true},
        {"ids", replaced(good, "autoid=\"", "autoid=\"-2147483649"), true},
        {"order",
         replaced(replaced(good, "turns=\"", "turns=\"+99999999,,-1,x,2,2,"), "reach=\"",
                  "reach=\"2,nan,1e30,-1,0;2,1;;9,"),
         true},
        {"crowd", replaced(good, "</Objects>", crowd + "</Objects>"), true},
    };
    for (const Case& c : cases) {
        RunGame game;
        game.write("saves/bad.xml", c.text);
        game.script("0 map hangar\n3 loadgame bad\n40 dumpworld\n");
        EXPECT_EQ(game.headless({"--frames", "42"}), 0) << c.name;
        const bool refused =
            game.log().find("Can't load save file: saves/bad.xml") != std::string::npos;
        EXPECT_EQ(refused, !c.loads) << c.name;
        const std::string dump = game.read("worlddump.xml");
        EXPECT_NE(dump.find("levelloaded=\"true\""), std::string::npos) << c.name;
        EXPECT_EQ(dump.find("nan"), std::string::npos) << c.name;
        EXPECT_NE(dump.find("type=\"player\""), std::string::npos) << c.name;
        // The refused ones left the level that ran: its steps go on counting.
        EXPECT_EQ(dump.find(" step=\"39\"") != std::string::npos, refused) << c.name;
    }
}

TEST(Saves, ABadNameOrAnUnreadableSaveKeepsNobodyDead) {
    const std::string level =
        "<l><Objects><P type='spawnpoint' idname='s'><params solid='false'/><verts>"
        "<v origin='0,0'/><v origin='9,0'/><v origin='9,9'/></verts>"
        "<attributes><a name='startpoint' value='true'/></attributes></P>"
        "<P type='painbody' idname='pain'><params solid='false'/><verts>"
        "<v origin='500,0'/><v origin='540,0'/><v origin='540,40'/><v origin='500,40'/></verts>"
        "<attributes><a name='on' value='true'/><a name='pain' value='9999'/></attributes></P>"
        "</Objects></l>";
    struct Case {
        const char* name;
        const char* lines;
        const char* savedAs;
    };
    constexpr Case cases[] = {
        {"badname", "2 savegame good\n6 savegame ../evil\n", "good"},
        {"spoiled", "2 savegame good\n6 condump saves/good.xml\n", "good"},
    };
    for (const Case& c : cases) {
        RunGame game;
        game.write("maps/t.xml", level);
        game.script(std::string("0 map t\n0 gravity 0\n1 give health 7\n") + c.lines +
                    "10 warpto pain\n140 dumpworld\n140 dumpstate\n");
        ASSERT_EQ(game.headless({"--frames", "142"}), 0) << c.name;
        EXPECT_EQ(game.read("worlddump.xml").find("dead=\"true\""), std::string::npos) << c.name;
        const std::string name = std::string("savename=\"") + c.savedAs + '"';
        EXPECT_NE(game.read("statedump.xml").find(name), std::string::npos) << c.name;
        const bool loaded =
            game.log().find("Loading save game: saves/good.xml") != std::string::npos;
        EXPECT_EQ(loaded, c.name == std::string("badname")) << c.name;
        EXPECT_NE(game.read("worlddump.xml").find("health=\"100\" maxhealth=\"100\" armour"),
                  std::string::npos)
            << c.name;
    }
}

/// A square of 30 units with its lower left corner at x,y.
std::string bodyAt(int x, int y, const std::string& head, const std::string& rest,
                   const std::string& params = "solid='false'") {
    std::string text = "<P " + head + "><params " + params + "/><verts>";
    for (const auto& [dx, dy] : {std::pair{0, 0}, {30, 0}, {30, 30}, {0, 30}})
        text += "<v origin='" + std::to_string(x + dx) + ',' + std::to_string(y + dy) + "'/>";
    return text + "</verts>" + rest + "</P>";
}

std::string attribute(const char* name, const char* value) {
    return std::string("<attributes><a name='") + name + "' value='" + value + "'/></attributes>";
}

const std::string savesLevel =
    "<l><Objects>" + bodyAt(0, 0, "type='spawnpoint' idname='s'", attribute("startpoint", "true")) +
    bodyAt(0, 0, "type='skyinfo' idname='i'", attribute("skies", "default,nebula")) +
    bodyAt(0, 0, "type='skytransition' idname='t'", attribute("sky", "nebula")) +
    bodyAt(0, 300, "type='messengerbody' idname='m'", "") +
    bodyAt(900, 900, "type='namedpoint' idname='far'", "") + "</Objects></l>";

TEST(Saves, BringBackTheSkyThatThePlayerCameTo) {
    RunGame game;
    game.write("maps/t.xml", savesLevel);
    game.script(
        "0 map t\n4 savegame s\n8 map t\n8 warpto far\n9 dumpstate before.xml\n"
        "10 loadgame s\n10 warpto far\n12 dumpstate\n");
    ASSERT_EQ(game.headless({"--frames", "14"}), 0);
    EXPECT_NE(game.read("before.xml").find("current=\"data/sky/default.xml\""), std::string::npos);
    EXPECT_NE(game.read("statedump.xml").find("current=\"data/sky/nebula.xml\""),
              std::string::npos);
}

TEST(Saves, OlderOnesThatSayLessLoadAsTheyWereMeant) {
    RunGame game;
    game.write("maps/t.xml", savesLevel);
    game.write("waves/w.xml", "<w><event time='0' target='m'/><event time='5000' target='m'/></w>");
    const std::string moves = "solid='true' visible='true' entity='true' mass='5'";
    game.write(
        "saves/old.xml",
        "<save currentlevel='t' nextbodyid='9' timer='0,3000,3000,1000,true'><Objects>" +
            bodyAt(500, 500, "type='debugmoveable' idname='b'",
                   "<custom pos='515,515' autoid='5' health='500' takedamage='true'/>", moves) +
            bodyAt(440, 505, "type='rocketprojectile' idname='r'",
                   "<custom pos='455,515' vel='400,0' frozenvel='400,0' autoid='6'/>",
                   "solid='false' visible='true' entity='true' mass='5'") +
            bodyAt(0, 600, "type='wavecontroller' idname='w'",
                   attribute("wavefile", "waves/w.xml") +
                       "<custom pos='15,615' autoid='7' active='true' starttime='1000'/>",
                   "entity='true'") +
            "</Objects></save>");
    game.script("0 map t\n0 difficulty 3\n0 logdamage 1\n0 logtriggers 1\n2 loadgame old\n");
    ASSERT_EQ(game.headless({"--frames", "60"}), 0);
    EXPECT_NE(game.log().find("damage 5 amount 110 type 32 absorbed 0 health 390"),
              std::string::npos);
    // The first event of the timetable was over, the second is not due yet.
    EXPECT_EQ(game.log().find("triggered"), std::string::npos);
}

}  // namespace
}  // namespace bc
