// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Every weapon in the hands of the player, on the level "range", by script: what it costs, how
// often it fires, and what its hits do to known targets.
#include "RunGame.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace bc {
namespace {

struct Hit {
    int target, amount, type, health;
};

/// The damage lines of a log, in order.
std::vector<Hit> hits(const std::string& log) {
    std::vector<Hit> out;
    std::istringstream lines(log);
    for (std::string line; std::getline(lines, line);) {
        Hit h{};
        if (std::sscanf(line.c_str(), "damage %d amount %d type %d absorbed %*d health %d",
                        &h.target, &h.amount, &h.type, &h.health) == 4)
            out.push_back(h);
    }
    return out;
}

int count(const std::string& text, const std::string& part) {
    int n = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++n;
    return n;
}

/// A world dump. Bodies are named by their idname, the player by its type.
class Dump {
  public:
    explicit Dump(const std::string& xml) { document_.Parse(xml.c_str()); }

    [[nodiscard]] std::vector<const TiXmlElement*> all(const std::string& name) const {
        std::vector<const TiXmlElement*> out;
        const TiXmlElement* root = document_.RootElement();
        const TiXmlElement* list = root != nullptr ? root->FirstChildElement("Objects") : nullptr;
        for (const auto* p = list != nullptr ? list->FirstChildElement() : nullptr; p != nullptr;
             p = p->NextSiblingElement())
            if (name == p->Attribute("idname") || name == p->Attribute("type"))
                out.push_back(p);
        return out;
    }
    /// A value of the saved state; element names a child of it. Empty when there is none.
    [[nodiscard]] std::string value(const std::string& name, const char* attribute,
                                    const std::vector<const char*>& path = {}) const {
        const auto found = all(name);
        const TiXmlElement* e = found.empty() ? nullptr : found[0]->FirstChildElement("custom");
        for (const char* child : path)
            e = e != nullptr ? e->FirstChildElement(child) : nullptr;
        const char* text = e != nullptr ? e->Attribute(attribute) : nullptr;
        return text != nullptr ? text : "";
    }
    [[nodiscard]] int id(const std::string& name) const {
        const auto found = all(name);
        int out = 0;
        return !found.empty() && found[0]->QueryIntAttribute("autoid", &out) == 0 ? out : 0;
    }
    [[nodiscard]] float speed(const std::string& name) const {
        float x = 0;
        float y = 0;
        std::sscanf(value(name, "vel").c_str(), "%f,%f", &x, &y);
        return std::hypot(x, y);
    }
    [[nodiscard]] float x(const std::string& name) const {
        return std::strtof(value(name, "pos").c_str(), nullptr);
    }
    [[nodiscard]] int ammo(const char* ammoId) const {
        return std::atoi(value("player", ammoId, {"inventory", "ammo"}).c_str());
    }
    [[nodiscard]] int active() const {
        return std::atoi(value("player", "activeweap", {"inventory"}).c_str());
    }

  private:
    TiXmlDocument document_;
};

constexpr const char* ready =
    "0 map range\n1 set gravity 0\n1 set difficulty 3\n1 set logdamage 1\n1 set logshots 1\n"
    "2 give weapons\n3 @move 800 384\n";

/// The fire begins with pass 9 and lasts for so many passes of 25 ms.
std::string fire(int passes) {
    return "9 +attack\n" + std::to_string(9 + passes) + " -attack\n";
}

/// A movable target of 600 health hangs free, 76 units to the right of the craft.
constexpr const char* drum = "loose drum";

TEST(Range, EveryWeaponHasItsDamageCadenceAmmunitionAndPush) {
    struct Case {
        const char* weapon;
        const char* ammo;
        const char* ammoId;
        int passes;
        /// Within those passes.
        int shots;
        int pellets;
        int damage;
        int type;
        /// Units a second that the first shot gives the drum.
        float push;
    };
    // Delays are rounded up to whole steps: 66 ms are three of them.
    const Case cases[] = {
        {"pistol", "pistolammo", "a1", 45, 3, 1, 20, 1, 20},
        {"plasmagun", "plasmagunammo", "a2", 15, 5, 1, 5, 2, 10},
        {"shotgun", "shotgunammo", "a3", 65, 3, 10, 10, 4, 80},
        {"chaingun", "chaingunammo", "a4", 17, 5, 1, 12, 8, 20},
        {"grenadelauncher", "grenadelauncherammo", "a5", 33, 2, 1, 120, 16, 0},
        {"rocketlauncher", "rocketlauncherammo", "a6", 37, 2, 1, 110, 32, 0},
        {"railgun", "railgunammo", "a7", 41, 2, 1, 100, 64, 60},
        {"lightninggun", "lightninggunammo", "a8", 17, 5, 1, 16, 128, 5},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.weapon);
        RunGame game;
        game.script(std::string(ready) + "3 warpto drum_point\n4 useitem " + c.weapon +
                    "\n4 give " + c.ammo + " 30\n8 dumpworld before.xml\n" + fire(c.passes) +
                    "10 dumpworld first.xml\n120 dumpworld after.xml\n");
        ASSERT_EQ(game.headless({"--frames", "122"}), 0) << game.standardError();
        const std::string log = game.log();
        const Dump before(game.read("before.xml"));
        const Dump after(game.read("after.xml"));
        EXPECT_EQ(count(log, std::string("shot ") + c.weapon + " by 1 "), c.shots * c.pellets);
        EXPECT_EQ(after.ammo(c.ammoId), 30 - c.shots);
        int health = 600;
        for (const Hit& hit : hits(log)) {
            if (hit.target != before.id(drum))
                continue;
            EXPECT_EQ(hit.health, health - hit.amount);
            health = hit.health;
            // It may be driven into the barrels.
            if (hit.type == c.type)
                EXPECT_EQ(hit.amount, c.damage);
            else
                EXPECT_EQ(hit.type, 512);
        }
        EXPECT_LE(health, 600 - c.damage * c.pellets);
        if (c.push > 0) {
            const Dump first(game.read("first.xml"));
            EXPECT_NEAR(first.speed(drum), c.push, c.push * 0.03F);
        } else {
            EXPECT_GT(after.x(drum), before.x(drum) + 5);
        }
    }
}

TEST(Range, ARailGoesThroughTheWholeRowAndQuadDamageCountsOnce) {
    struct Case {
        const char* weapon;
        const char* point;
        /// Further script lines.
        const char* more;
        int damage;
        std::size_t targets;
    };
    const Case cases[] = {
        {"railgun", "row_point", "", 100, 6},
        {"railgun", "row_point", "5 give quad\n", 400, 6},
        {"rocketlauncher", "drum_point", "5 give quad\n", 440, 1},
        {"grenadelauncher", "drum_point", "5 give quad\n", 480, 1},
        {"pistol", "drum_point", "5 give megaquad\n5 give quad\n", 160, 1},
        // On the very middle of the craft the cursor points nowhere: the last aim stands.
        {"pistol", "drum_point", "5 @move 512 384\n", 20, 1},
        // The first of the row stops it.
        {"pistol", "row_point", "", 20, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.weapon) + " " + c.more);
        RunGame game;
        game.script(std::string(ready) + "3 warpto " + c.point + "\n4 give all\n4 useitem " +
                    c.weapon + "\n" + c.more + fire(1));
        ASSERT_EQ(game.headless({"--frames", "100"}), 0) << game.standardError();
        std::map<int, int> damageOf;
        for (const Hit& hit : hits(game.log()))
            if (hit.type < 256)
                damageOf[hit.target] += hit.amount;
        EXPECT_EQ(damageOf.size(), c.targets);
        for (const auto& [target, amount] : damageOf)
            EXPECT_EQ(amount, c.damage) << target;
    }
}

TEST(Range, AnEmptyWeaponClicksAndGivesWayToTheBestLoadedOne) {
    RunGame game;
    game.script(std::string(ready) +
                "3 set logsounds 1\n3 warpto drum_point\n4 useitem shotgun\n4 give shotgunammo 1\n"
                "4 give railgunammo 3\n4 give chaingunammo 3\n9 +attack\n"
                // Empty from pass 10 on; the change comes with the first thought 800 ms later.
                "41 dumpworld empty.xml\n52 dumpworld changed.xml\n");
    ASSERT_EQ(game.headless({"--frames", "54"}), 0);
    EXPECT_EQ(Dump(game.read("empty.xml")).active(), 4);
    const Dump changed(game.read("changed.xml"));
    EXPECT_EQ(changed.active(), 8);
    EXPECT_EQ(changed.ammo("a3"), 0);
    // The first click is 500 ms after the shot, and the next would be 500 ms after that.
    EXPECT_EQ(count(game.log(), "sound id 10 "), 1);
}

TEST(Range, TheUsersDefinitionsHoldAndAWrongFileChangesNothing) {
    RunGame game;
    game.write("data/weapons.xml", "<weapons><pistol damage='7' range='8096'/></weapons>");
    // What a dump leaves in its place is XML, but no weapons.
    game.script(std::string(ready) + "3 warpto drum_point\n" + fire(1) +
                "20 dumpworld data/weapons.xml\n21 reloadweapondefs\n30 +attack\n31 -attack\n");
    ASSERT_EQ(game.headless({"--frames", "40"}), 0);
    const std::vector<Hit> all = hits(game.log());
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[1].amount, 7);
    EXPECT_EQ(all[1].health, 600 - 14);
    const std::string missing = " weapon info from: data/weapons.xml";
    EXPECT_EQ(count(game.log(), "Couldn't read pistol" + missing), 1);
    EXPECT_EQ(count(game.log(), "Couldn't read railgun" + missing), 2);
}

TEST(Range, TheSwarmComesOutOnceAndTheGrappleHauls) {
    RunGame swarm;
    swarm.script(std::string(ready) + "3 warpto range_point\n4 useitem swarm\n" + fire(60) +
                 "60 dumpworld\n");
    ASSERT_EQ(swarm.headless({"--frames", "62"}), 0);
    EXPECT_EQ(Dump(swarm.read("worlddump.xml")).all("swarmmember").size(), 3U);
    RunGame grapple;
    grapple.script(std::string(ready) +
                   "3 warpto range_point\n8 dumpworld a.xml\n9 +grapple\n"
                   "60 dumpworld b.xml\n61 -grapple\n63 dumpworld c.xml\n");
    ASSERT_EQ(grapple.headless({"--frames", "65"}), 0);
    const Dump a(grapple.read("a.xml"));
    const Dump b(grapple.read("b.xml"));
    EXPECT_GT(b.x("player"), a.x("player") + 300);
    EXPECT_EQ(b.all("grappleprojectile").size(), 1U);
    EXPECT_TRUE(Dump(grapple.read("c.xml")).all("grappleprojectile").empty());
}

TEST(Range, OneShotIntoTheBarrelsTakesThemAllAndTargetsComeBack) {
    RunGame game;
    game.script(std::string(ready) +
                "3 warpto barrel_point\n8 dumpworld a.xml\n9 +attack\n10 -attack\n"
                "40 warpto near_point\n45 +attack\n67 -attack\n68 dumpworld dead.xml\n"
                "220 dumpworld b.xml\n");
    ASSERT_EQ(game.headless({"--frames", "222"}), 0);
    const Dump a(game.read("a.xml"));
    const Dump b(game.read("b.xml"));
    EXPECT_EQ(a.all("explodingbarrel").size() - b.all("explodingbarrel").size(), 8U);
    const Dump dead(game.read("dead.xml"));
    EXPECT_EQ(dead.value("near target", "inlimbo"), "true");
    EXPECT_EQ(b.value("near target", "inlimbo"), "false");
    EXPECT_EQ(b.value("near target", "health"), "40");
}

}  // namespace
}  // namespace bc
