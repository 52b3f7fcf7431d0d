// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/SoundIds.h"
#include "gameplay/objects/pickups/AmmoBase.h"
#include "gameplay/objects/pickups/Armour.h"
#include "gameplay/objects/pickups/CashPickup.h"
#include "gameplay/objects/pickups/Health.h"
#include "gameplay/objects/pickups/Invincibility.h"
#include "gameplay/objects/pickups/MegaHealth.h"
#include "gameplay/objects/pickups/MegaQuadDamage.h"
#include "gameplay/objects/pickups/QuadDamage.h"
#include "gameplay/objects/pickups/QuickArmour.h"
#include "gameplay/objects/pickups/QuickHealth.h"
#include "gameplay/objects/pickups/ScreenWiper.h"
#include "gameplay/objects/pickups/WeaponBase.h"
#include "gameplay/weapons/WeaponTable.h"
#include "support/PlayFixture.h"
#include "world/TouchInfo.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

namespace bc {
namespace {

class PickupsTest : public test::PlayFixture {
  protected:
    void touch(Body& pickup) {
        TouchInfo info;
        info.self = &pickup;
        info.other = player;
        pickup.onTouch(info);
    }
    /// Out of the player's reach, so that only touch() touches it.
    static constexpr Vector away{300, 300};
};

TEST_F(PickupsTest, HealthIsTakenWhenItIsOfUseAndComesBack) {
    Health* health = add<Health>(away);
    touch(*health);
    EXPECT_TRUE(health->isAvailable()) << "nobody at full health takes it";
    player->setHealth(30);
    touch(*health);
    EXPECT_EQ(player->getHealth(), 80);
    EXPECT_FALSE(health->isAvailable());
    EXPECT_EQ(game.sound.countOf(sound::healthPickup), 1);
    EXPECT_EQ(bodiesOfType("textbody"), 1);
    touch(*health);
    EXPECT_EQ(player->getHealth(), 80) << "it is gone";
    stepMsecs(4900);
    EXPECT_FALSE(health->isAvailable());
    stepMsecs(400);
    EXPECT_TRUE(health->isAvailable());
    EXPECT_EQ(game.sound.countOf(sound::respawn), 1);
}

TEST_F(PickupsTest, WhatKindsGive) {
    auto* quick = add<QuickHealth>(away);
    auto* mega = add<MegaHealth>(away);
    auto armour = std::make_unique<Armour>();
    armour->amount = 70;
    Armour* plates = add(std::move(armour), away);
    player->progress.maxHealth = 150;
    player->setHealth(10);
    touch(*quick);
    EXPECT_EQ(player->getHealth(), 30);
    touch(*mega);
    EXPECT_EQ(player->getHealth(), 150) << "up to the player's own maximum";
    touch(*plates);
    EXPECT_EQ(player->getArmour(), 70);
    EXPECT_EQ(game.sound.countOf(sound::megaHealth), 1);
    EXPECT_EQ(game.sound.countOf(sound::armourPickup), 1);
}

TEST_F(PickupsTest, AmmunitionByTypeNameUpToItsMaximum) {
    AmmoBase* shells = add(std::make_unique<AmmoBase>("shotgunammo"), away);
    const int kind = ammoIdOf("shotgunammo");
    player->inventory.setAmmo(kind, 45);
    touch(*shells);
    EXPECT_EQ(player->inventory.ammo(kind), 50);
    EXPECT_FALSE(shells->isAvailable());
    AmmoBase* more = add(std::make_unique<AmmoBase>("shotgunammo"), away);
    touch(*more);
    EXPECT_TRUE(more->isAvailable());
    player->inventory.setAmmo(kind, 999);
    touch(*more);
    EXPECT_TRUE(more->isAvailable()) << "more than the maximum is not below it";
    AmmoBase* unknown = add(std::make_unique<AmmoBase>("nosuchammo"), away);
    touch(*unknown);
    EXPECT_TRUE(unknown->isAvailable());
}

TEST_F(PickupsTest, WeaponsComeWithAmmunition) {
    auto body = std::make_unique<WeaponBase>("railgun");
    body->applyAttributes({{"Ammo", "7"}});
    WeaponBase* rail = add(std::move(body), away);
    EXPECT_FALSE(player->inventory.owns(weapon::railgun));
    touch(*rail);
    EXPECT_TRUE(player->inventory.owns(weapon::railgun));
    EXPECT_EQ(player->inventory.ammoForWeapon(weapon::railgun), 7);
    EXPECT_EQ(game.sound.countOf(sound::weaponPickup), 1);
}

TEST_F(PickupsTest, PowerUpsAndCash) {
    touch(*add<MegaQuadDamage>(away));
    EXPECT_FLOAT_EQ(player->damageFactor, 8);
    touch(*add<QuadDamage>(away));
    EXPECT_FLOAT_EQ(player->damageFactor, 8) << "the stronger one stays";
    touch(*add<Invincibility>(away));
    EXPECT_TRUE(player->hasInvinc);
    auto cash = std::make_unique<CashPickup>();
    cash->applyAttributes({{"amount", "60"}, {"respawndelay", "0"}});
    CashPickup* coins = add(std::move(cash), away);
    EXPECT_FALSE(coins->acceptsCollision(*player));
    touch(*coins);
    EXPECT_EQ(player->progress.cash, 60);
    EXPECT_EQ(player->progress.maxHealth, 150) << "the first upgrade";
    stepMsecs(2000);
    EXPECT_FALSE(coins->isAvailable()) << "cash never comes back";
}

TEST_F(PickupsTest, TheWiperHurtsEnemiesInReach) {
    GameBody* near = addTarget(Vector(500, 300));
    GameBody* ally = addTarget(Vector(320, 300), team::player);
    GameBody* far = addTarget(Vector(700, 300));
    touch(*add<ScreenWiper>(away));
    EXPECT_EQ(near->getHealth(), 500);
    EXPECT_EQ(ally->getHealth(), 1000);
    EXPECT_EQ(far->getHealth(), 1000);
}

TEST_F(PickupsTest, ASaveKnowsWhatWasCollected) {
    Health* health = add<Health>(away);
    player->setHealth(1);
    touch(*health);
    TiXmlElement state("custom");
    health->saveState(state);
    Health other;
    other.loadState(state);
    EXPECT_FALSE(other.isAvailable());
    EXPECT_FLOAT_EQ(other.nextRespawn, health->nextRespawn);
}

}  // namespace
}  // namespace bc
