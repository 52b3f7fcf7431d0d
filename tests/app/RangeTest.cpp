// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The level "range" by script: every weapon with its shipped definition, and what else stands
// there.
#include "RunGame.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <sstream>
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

constexpr const char* drum = "loose drum";

TEST(Range, EveryWeaponHasItsDamageCadenceAmmunitionAndPush) {
    struct Case {
        const char* weapon;
        const char* ammo;
        const char* ammoId;
        /// Of 25 ms, for which the fire is held, and how many shots there are in them.
        int passes;
        int shots;
        int pellets;
        int damage;
        int type;
        /// Units a second that the first shot gives the drum; 0 for what bursts later.
        float push;
        const char* cursor;
    };
    // Delays are rounded up to whole steps: 66 ms are three of them.
    const Case cases[] = {
        {"pistol", "pistolammo", "a1", 45, 3, 1, 20, 1, 20, "512"},
        {"plasmagun", "plasmagunammo", "a2", 15, 5, 1, 5, 2, 10, "800"},
        {"shotgun", "shotgunammo", "a3", 65, 3, 10, 10, 4, 80, "800"},
        {"chaingun", "chaingunammo", "a4", 17, 5, 1, 12, 8, 20, "800"},
        {"grenadelauncher", "grenadelauncherammo", "a5", 33, 2, 1, 120, 16, 0, "800"},
        {"rocketlauncher", "rocketlauncherammo", "a6", 37, 2, 1, 110, 32, 0, "800"},
        {"railgun", "railgunammo", "a7", 41, 2, 1, 100, 64, 60, "800"},
        {"lightninggun", "lightninggunammo", "a8", 17, 5, 1, 16, 128, 5, "800"},
    };
    /// Of the barrels, which the drum may be driven into.
    constexpr int barrelDamage = 512;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.weapon);
        RunGame game;
        ASSERT_EQ(game.play("range_weapon", {{"WEAPON", c.weapon},
                                             {"AMMO", c.ammo},
                                             {"X", c.cursor},
                                             {"END", std::to_string(9 + c.passes)}}),
                  0)
            << game.standardError();
        const std::string log = game.log();
        const Dump before = game.dump("before");
        const Dump after = game.dump("after");
        EXPECT_EQ(countIn(log, std::string("shot ") + c.weapon + " by 1 "), c.shots * c.pellets);
        EXPECT_EQ(after.number(Dump::craft, c.ammoId), 30 - c.shots);
        int health = 600;
        for (const Hit& hit : hits(log)) {
            if (hit.target != static_cast<int>(before.number(drum, "autoid")))
                continue;
            EXPECT_EQ(hit.health, health - hit.amount);
            health = hit.health;
            EXPECT_TRUE(hit.type == barrelDamage || (hit.type == c.type && hit.amount == c.damage))
                << hit.type << ": " << hit.amount;
        }
        EXPECT_LE(health, 600 - c.damage * c.pellets);
        if (c.push > 0)
            EXPECT_NEAR(game.dump("first").vector(drum, "vel").length(), c.push, c.push * 0.03F);
        else
            EXPECT_GT(after.number(drum, "pos"), before.number(drum, "pos") + 5);
    }
}

TEST(Range, BarrelsTargetsSwarmAndGrapple) {
    RunGame game;
    ASSERT_EQ(game.play("range"), 0) << game.standardError();
    const Dump start = game.dump("start");
    const Dump shot = game.dump("shot");
    const Dump swarm = game.dump("swarm");
    const Dump end = game.dump("end");
    const char* barrel = "type=\"explodingbarrel\"";
    EXPECT_EQ(start.count(barrel) - end.count(barrel), 8) << "one shot sets off the whole row";
    EXPECT_EQ(shot.value("near target", "inlimbo"), "true");
    EXPECT_EQ(end.value("near target", "inlimbo"), "false");
    EXPECT_EQ(end.value("near target", "health"), "40");
    EXPECT_EQ(swarm.count("type=\"swarmmember\""), 3);
    EXPECT_GT(game.dump("hauled").number(Dump::craft, "pos"),
              swarm.number(Dump::craft, "pos") + 300);
    EXPECT_EQ(game.dump("hauled").count("type=\"grappleprojectile\""), 1);
    EXPECT_EQ(end.count("type=\"grappleprojectile\""), 0);
}

}  // namespace
}  // namespace bc
