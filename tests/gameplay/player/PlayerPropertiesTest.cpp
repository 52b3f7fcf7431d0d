// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/player/PlayerProperties.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

namespace bc {
namespace {

struct UpgradeCase {
    int cash, level, health, armour, swarm, maxHealth, maxArmour, toNext;
};

TEST(PlayerPropertiesTest, CashBuysTheHighestLevelPassed) {
    for (const UpgradeCase& c : {
             UpgradeCase{49, 0, 1, 1, 1, 100, 100, 1},
             {50, 1, 2, 1, 1, 150, 100, 25},
             {74, 1, 2, 1, 1, 150, 100, 1},
             {75, 2, 2, 2, 1, 150, 150, 25},
             {100, 3, 2, 2, 2, 150, 150, 50},
             {160, 4, 3, 2, 2, 300, 150, 15},
             {180, 5, 3, 3, 2, 300, 300, 20},
             {249, 6, 3, 3, 3, 300, 300, 1},
             {299, 8, 4, 4, 3, 400, 400, 1},
             {399, 11, 5, 5, 4, 500, 500, 1},
             {400, 12, 5, 5, 5, 500, 500, 0},
             {100000, 12, 5, 5, 5, 500, 500, 0},
         }) {
        PlayerProperties p;
        p.cash = c.cash;
        p.checkUpgrade();
        EXPECT_EQ(p.currentLevel, c.level) << c.cash;
        EXPECT_EQ(p.upgradePending, c.level > 0) << c.cash;
        EXPECT_EQ(p.healthLevel, c.health) << c.cash;
        EXPECT_EQ(p.armourLevel, c.armour) << c.cash;
        EXPECT_EQ(p.swarmLevel, c.swarm) << c.cash;
        EXPECT_EQ(p.maxHealth, c.maxHealth) << c.cash;
        EXPECT_EQ(p.maxArmour, c.maxArmour) << c.cash;
        EXPECT_EQ(p.cashToNextLevel(), c.toNext) << c.cash;
        // Nothing happens until the next threshold.
        p.upgradePending = false;
        p.checkUpgrade();
        EXPECT_FALSE(p.upgradePending);
    }
}

TEST(PlayerPropertiesTest, TracksRefuseWhatIsNoLevel) {
    PlayerProperties p;
    p.setHealthLevel(3);
    EXPECT_EQ(p.maxHealth, 300);
    p.maxHealth = 1;
    p.setHealthLevel(6);  // stays at 3, its maximum made good
    EXPECT_EQ(p.healthLevel, 3);
    EXPECT_EQ(p.maxHealth, 300);
    p.setSwarmLevel(6);
    p.setArmourLevel(0);
    p.setArmourLevel(-1000);
    EXPECT_EQ(p.swarmLevel, 1);
    EXPECT_EQ(p.armourLevel, 1);
    EXPECT_EQ(p.maxArmour, 100);
    EXPECT_EQ(PlayerProperties::titleOfLevel(12), "Level 12 - Swarm Upgraded");
    EXPECT_EQ(PlayerProperties::titleOfLevel(13), "");
}

TEST(PlayerPropertiesTest, ReadBackAsSaved) {
    PlayerProperties p;
    p.cash = 260;
    p.checkUpgrade();
    p.setSwarmLevel(5);
    TiXmlElement node("Player");
    p.saveState(node, Digits::exact);
    PlayerProperties q;
    q.loadState(node, Digits::exact);
    EXPECT_EQ(q.cash, 260);
    EXPECT_EQ(q.currentLevel, 7);
    EXPECT_EQ(q.swarmLevel, 5);
    EXPECT_EQ(q.maxHealth, 400);
    EXPECT_EQ(q.maxArmour, 300);
    // What was shown is not shown again.
    q.checkUpgrade();
    EXPECT_FALSE(q.upgradePending);
}

}  // namespace
}  // namespace bc
