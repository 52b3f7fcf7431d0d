// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/player/Player.h"
#include "gameplay/weapons/FireableWeapon.h"
#include "gameplay/weapons/GrappleProjectile.h"
#include "hud/GameHUD.h"
#include "support/PlayFixture.h"
#include "support/RecordingRenderer.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

namespace bc {
namespace {

class PlayerTest : public test::PlayFixture {
  protected:
    /// The text of a line of the HUD, empty while it is hidden.
    std::string messageOf(const char* item) {
        TiXmlElement dump("Hud");
        GameplaySingleton::instance().hud->update(0);
        GameplaySingleton::instance().hud->dump(dump);
        return dump.Attribute(item) != nullptr ? dump.Attribute(item) : "";
    }
};

TEST_F(PlayerTest, HealthAndArmourStopAtWhatUpgradesAllow) {
    player->addHealth(500);
    player->addArmour(500);
    EXPECT_EQ(player->health, 100);
    EXPECT_EQ(player->armour, 100);
    player->progress.setHealthLevel(3);
    player->progress.setArmourLevel(2);
    player->addHealth(500);
    player->addArmour(500);
    EXPECT_EQ(player->health, 300);
    EXPECT_EQ(player->armour, 150);
    player->setHealth(400);
    player->addHealth(-50);
    EXPECT_EQ(player->health, 300);
}

TEST_F(PlayerTest, CashBuysUpgradesOnceEach) {
    player->addCash(180);
    EXPECT_EQ(player->progress.currentLevel, 5);
    EXPECT_FALSE(player->progress.upgradePending);
    EXPECT_EQ(game.sound.countOf(24), 1);
    EXPECT_EQ(game.sound.countOf(30), 1);
    player->addCash(1);
    EXPECT_EQ(game.sound.countOf(24), 2);
    EXPECT_EQ(game.sound.countOf(30), 1);
}

TEST_F(PlayerTest, PowerUpsRefreshKeepTheStrongerAndEnd) {
    player->giveQuad(8);
    EXPECT_EQ(game.sound.countOf(25), 1);
    stepMsecs(20000);
    EXPECT_EQ(systemsOf("quadeffect"), 1);
    // The sparks lie as deep as the pulse, which must not cut them off.
    test::RecordingRenderer renderer;
    player->drawExtras(renderer);
    const auto pulse = renderer.drawn("data/particles/magneticpulse.png");
    ASSERT_EQ(pulse.size(), 1U);
    EXPECT_FALSE(pulse[0].depthWrite);
    EXPECT_TRUE(renderer.state.depthWrite);
    player->giveQuad(4);
    EXPECT_FLOAT_EQ(player->damageFactor, 8);
    EXPECT_EQ(player->scaleOutgoingDamage(100), 800);
    EXPECT_EQ(player->particleSystems().size(), 1U);
    stepMsecs(29000);
    EXPECT_TRUE(player->hasQuad);
    EXPECT_NEAR(player->hudQuadMsLeft(), 1000, 1);
    stepMsecs(1400);
    EXPECT_FALSE(player->hasQuad);
    EXPECT_EQ(player->scaleOutgoingDamage(100), 100);
    EXPECT_EQ(game.sound.countOf(27), 1);
    EXPECT_TRUE(player->particleSystems().empty());
    EXPECT_EQ(systemsOf("quadeffect"), 0);
    game.sound.plays.clear();
    player->giveInvincibility(0.5F);
    player->takeDamage(30, 1);
    EXPECT_EQ(player->health, 85);
    stepMsecs(30400);
    player->takeDamage(30, 1);
    EXPECT_EQ(player->health, 55);
    EXPECT_EQ(game.sound.countOf(27), 0);
}

TEST_F(PlayerTest, DiesOnceAndAsksForTheLastSave) {
    put(user() + "/saves/hero.xml", "<save/>");
    game.saveName = "hero";
    player->vel = Vector(100, 0);
    player->takeDamage(150, -1);
    EXPECT_TRUE(player->dead && player->dying);
    EXPECT_FALSE(player->visible || player->solid || player->isMassive());
    EXPECT_GT(bodiesOfType("gib"), 0);
    const int gibs = bodiesOfType("gib");
    player->die();
    EXPECT_EQ(bodiesOfType("gib"), gibs);
    stepMsecs(1900);
    EXPECT_TRUE(game.loadRequests.empty());
    stepMsecs(400);
    EXPECT_EQ(game.loadRequests, std::vector<std::string>{"hero"});
    EXPECT_EQ(game.sound.countOf(15), 1);
    // A load that fails is asked for again, at leisure.
    stepMsecs(2500);
    EXPECT_EQ(game.loadRequests.size(), 2U);
    EXPECT_TRUE(game.mapRequests.empty());
}

TEST_F(PlayerTest, WithoutASaveTheLevelBeginsAnew) {
    player->takeDamage(5000, -1);
    stepMsecs(2300);
    EXPECT_EQ(game.mapRequests, std::vector<std::string>{"testlevel@"});
    EXPECT_TRUE(game.loadRequests.empty());
}

TEST_F(PlayerTest, EveryLevelStartRevives) {
    for (const bool fromSave : {false, true}) {
        player->progress.setHealthLevel(2);
        player->takeDamage(5000, -1);
        ASSERT_TRUE(player->dead);
        TiXmlElement state("save");
        gameplay->saveGameplayState(state);
        endLevel();
        if (fromSave)
            gameplay->loadGameplayState(state);
        startLevel();
        EXPECT_FALSE(player->dead || player->dying || player->revivePending) << fromSave;
        EXPECT_TRUE(player->visible && player->solid && player->takesDamage);
        EXPECT_FLOAT_EQ(player->mass, 100);
        EXPECT_FLOAT_EQ(player->invMass, 0.01F);
        EXPECT_FLOAT_EQ(player->gravitymultiplier, 1);
        EXPECT_EQ(player->health, 150);
    }
}

TEST_F(PlayerTest, ReadsBackWhatItSaved) {
    player->addCash(110);
    player->setHealth(77);
    player->setArmour(13);
    player->giveQuad(8);
    player->inventory.giveWeapon(weapon::shotgun);
    player->inventory.setAmmo(3, 7);
    player->inventory.switchTo(weapon::shotgun);
    player->inventory.weaponObject(weapon::swarm)->nextFireTime = 19000;
    player->vel = Vector(3, 4);
    const float quadTime = player->quadTime;
    TiXmlElement node("Player");
    player->saveState(node);
    endLevel();
    gameplay->resetPlayerProgress();
    startLevel();
    player->hasQuad = false;
    player->loadState(node);
    player->onLoaded();
    EXPECT_EQ(player->health, 77);
    EXPECT_EQ(player->armour, 13);
    EXPECT_EQ(player->progress.cash, 110);
    EXPECT_EQ(player->progress.currentLevel, 3);
    EXPECT_EQ(player->progress.maxHealth, 150);
    EXPECT_EQ(player->inventory.activeWeapon(), weapon::shotgun);
    EXPECT_EQ(player->inventory.ammo(3), 7);
    EXPECT_EQ(player->inventory.ammo(4), 0);
    EXPECT_TRUE(player->inventory.owns(weapon::shotgun));
    EXPECT_FALSE(player->inventory.owns(weapon::railgun));
    EXPECT_FLOAT_EQ(player->hudSwarmMsLeft(), 19000 - levelTime());
    EXPECT_TRUE(player->hasQuad);
    EXPECT_FLOAT_EQ(player->quadTime, quadTime);
    EXPECT_EQ(systemsOf("quadeffect"), 1);
    EXPECT_TRUE(player->vel.equals({3, 4}));
}

TEST_F(PlayerTest, ASaveOfADeadPlayerComesBackAlive) {
    player->takeDamage(5000, -1);
    TiXmlElement node("Player");
    player->saveState(node);
    endLevel();
    startLevel();
    player->loadState(node);
    player->onLoaded();
    EXPECT_FALSE(player->dead || player->dying);
    EXPECT_TRUE(player->takesDamage && player->visible);
    EXPECT_EQ(player->health, 100);
}

TEST_F(PlayerTest, ANewAdventureStartsWithNothing) {
    player->addCash(300);
    player->inventory.giveAllWeapons();
    player->inventory.giveAllAmmo();
    player->inventory.switchTo(weapon::railgun);
    gameplay->resetPlayerProgress();
    EXPECT_EQ(player->progress.cash, 0);
    EXPECT_EQ(player->progress.maxArmour, 100);
    EXPECT_EQ(player->inventory.activeWeapon(), weapon::pistol);
    for (int id = 1; id <= weapon::last; ++id)
        EXPECT_EQ(player->inventory.owns(id), id == 1 || id == 2 || id == 10) << id;
    EXPECT_EQ(player->inventory.ammo(7), 0);
    EXPECT_EQ(player->inventory.ammo(1), infiniteAmmo);
}

}  // namespace
}  // namespace bc
