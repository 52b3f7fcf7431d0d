// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The levels that ship, played by script: the workshop bay by bay, and both races of the circuit.
#include "RunGame.h"

#include "core/Text.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <set>
#include <sstream>
#include <vector>

namespace bc {
namespace {

/// Compares the dumps of a script with NAME.expected: "[DUMP]" lines, each followed by lines "BODY
/// ATTRIBUTE VALUE".
void expectDumps(const RunGame& game, const std::string& name) {
    std::istringstream lines(RunGame::scriptLines(name + ".expected"));
    std::string dumpName;
    Dump dump("");
    int checked = 0;
    for (std::string line; std::getline(lines, line);) {
        if (line[0] == '#')
            continue;
        if (line[0] == '[') {
            dumpName = line.substr(1, line.size() - 2);
            dump = game.dump(dumpName);
            continue;
        }
        std::vector<std::string> words;
        tokenise(" ", line, words);
        ASSERT_EQ(words.size(), 3U) << line;
        EXPECT_EQ(dump.value(words[0], words[1]), words[2]) << dumpName << ": " << line;
        ++checked;
    }
    EXPECT_GT(checked, 100);
}

struct Motion {
    Vector pos;
    Vector vel;
};

/// What each playerinfo of a run printed.
std::vector<Motion> motions(const std::string& console) {
    std::vector<Motion> out;
    std::istringstream lines(console);
    for (std::string line; std::getline(lines, line);) {
        std::vector<std::string> words;
        tokenise(" ", line, words);
        if (words.size() == 5 && line.rfind("Player pos, vel:", 0) == 0)
            out.push_back({Vector(words[3]), Vector(words[4])});
    }
    return out;
}

TEST(Levels, EveryBayOfTheWorkshopWorks) {
    RunGame game;
    ASSERT_EQ(game.play("workshop"), 0) << game.standardError();
    expectDumps(game, "workshop");

    // Every loss of health in the pools shows that the pickup before gave what it should; none is
    // logged while the craft is invincible.
    std::string losses;
    std::istringstream lines(game.log());
    for (std::string line; std::getline(lines, line);)
        if (line.rfind("damage 1 ", 0) == 0)
            losses += line.substr(line.rfind(' '));
    EXPECT_EQ(losses, " 90 95 90");

    const std::string console = game.read("condump.txt");
    EXPECT_NE(console.find("Race Finished: "), std::string::npos);
    const std::vector<Motion> seen = motions(console);
    ASSERT_EQ(seen.size(), 8U);
    const Dump start = game.dump("start");
    const auto isAt = [&](const Motion& motion, const char* place) {
        const Vector there = start.vector(place, "pos");
        return Vector(motion.pos.x - there.x, motion.pos.y - there.y).length() < 30;
    };
    EXPECT_GT(seen[0].vel.y, 150) << "pad_up";
    EXPECT_LT(seen[1].vel.y, 0) << "pad_switched while it is off";
    EXPECT_GT(seen[3].vel.y, 150) << "pad_switched while it is on";
    EXPECT_TRUE(isAt(seen[4], "teleport_exit_1"));
    EXPECT_GT(seen[5].vel.y, 150) << "teleporter_thrown";
    EXPECT_TRUE(isAt(seen[6], "teleporter_idle"));
    EXPECT_TRUE(isAt(seen[7], "spine_places"));
}

std::set<std::string> attributesOf(const TiXmlElement* e) {
    std::set<std::string> out;
    for (const auto* a = e != nullptr ? e->FirstAttribute() : nullptr; a != nullptr; a = a->Next())
        out.insert(a->Name());
    return out;
}

/// A saved game holds entities only, so every body with mass or with a state of its own has to be
/// one.
TEST(Levels, BodiesWithAStateAreEntities) {
    RunGame game;
    ASSERT_EQ(game.playLines("0 map workshop\n1 dumpworld\n2 quit\n"), 0) << game.standardError();
    TiXmlDocument document;
    document.Parse(game.read("worlddump.xml").c_str());
    ASSERT_NE(document.RootElement(), nullptr);
    const TiXmlElement* list = document.RootElement()->FirstChildElement("Objects");
    ASSERT_NE(list, nullptr);
    std::set<std::string> plain;
    for (const auto* p = list->FirstChildElement(); p != nullptr; p = p->NextSiblingElement())
        if (std::string(p->Attribute("type")) == "detail")
            plain = attributesOf(p->FirstChildElement("custom"));
    ASSERT_FALSE(plain.empty());
    int entities = 0;
    for (const auto* p = list->FirstChildElement(); p != nullptr; p = p->NextSiblingElement()) {
        const std::string type = p->Attribute("type");
        const TiXmlElement* params = p->FirstChildElement("params");
        if (type == "player" || params == nullptr)
            continue;
        bool remembers = parseFloat(params->Attribute("mass")) > 0;
        for (const std::string& name : attributesOf(p->FirstChildElement("custom")))
            remembers = remembers || plain.count(name) == 0;
        EXPECT_TRUE(!remembers || std::string(params->Attribute("entity")) == "true") << type;
        entities += remembers ? 1 : 0;
    }
    EXPECT_GT(entities, 100);
}

TEST(Levels, BothRacesOfTheCircuitCanBeRunToTheirEnd) {
    for (const auto& [script, said] :
         {std::pair("race", "Race Finished: 9.7"), {"race_blocks", "Race Finished: "}}) {
        RunGame game;
        ASSERT_EQ(game.play(script), 0) << game.standardError();
        EXPECT_EQ(game.dump("worlddump.xml").value("Race", "active"), "false") << script;
        EXPECT_NE(game.read("condump.txt").find(said), std::string::npos) << script;
    }
}

TEST(Levels, TheirExitsLeadToEachOther) {
    RunGame game;
    ASSERT_EQ(game.play("exits"), 0) << game.standardError();
    for (const std::string level : {"circuit", "workshop", "hangar"})
        EXPECT_EQ(game.dump(level).value("game", "currentlevel"), level + ".xml");
    const Dump back = game.dump("back");
    EXPECT_NEAR(back.number(Dump::craft, "pos"), back.number("from_elsewhere", "pos"), 1);
}

}  // namespace
}  // namespace bc
