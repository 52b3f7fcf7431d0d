// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/GameCategories.h"
#include "gameplay/weapons/GrappleWeapon.h"
#include "gameplay/weapons/InstantWeapons.h"
#include "gameplay/weapons/LauncherWeapons.h"
#include "gameplay/weapons/SwarmWeapon.h"
#include "support/AllocationCounter.h"
#include "support/PlayFixture.h"
#include "view/Frustum.h"

#include <gtest/gtest.h>

namespace bc {
namespace {

class PlayAllocationTest : public test::PlayFixture {
  protected:
    /// A second of fire at the enemies and the walls around, from one weapon after the other.
    void fight(std::initializer_list<FireableWeapon*> weapons) {
        for (FireableWeapon* weapon : weapons) {
            weapon->enemyWeapon = true;  // whose blasts do not flash the screen
            for (int i = 0; i < 40; ++i) {
                weapon->reset();
                const Vector aim = i % 2 == 0 ? Vector(1, 0) : Vector(0.6F, 0.8F);
                if (i % 4 == 0)
                    weapon->fire(player, player->pos, aim, levelTime());
                weapon->unfire(levelTime());
                step();
                particleManager().update(dt, Frustum());
            }
        }
        step(60);
    }
};

TEST_F(PlayAllocationTest, AWarmFireFightAllocatesNothing) {
    for (const Vector& wall : {Vector(300, 0), Vector(-300, 0), Vector(0, 300), Vector(0, -300)})
        addWall(wall, wall.x != 0 ? 20.0F : 620.0F, wall.x != 0 ? 620.0F : 20.0F);
    GameBody* enemy = addTarget({150, 0});
    enemy->health = 100000000;
    enemy->mass = enemy->invMass = 0;
    PistolWeapon pistol;
    ShotgunWeapon shotgun;
    RailgunWeapon rail;
    LightningWeapon lightning;
    RocketWeapon rockets;
    GrenadeWeapon grenades;
    PlasmaPistolWeapon bolts;
    GrappleWeapon grapple;
    game.sound.plays.reserve(100000);
    game.sound.stopped.reserve(100000);
    const auto all = {
        static_cast<FireableWeapon*>(&pistol),  static_cast<FireableWeapon*>(&shotgun),
        static_cast<FireableWeapon*>(&rail),    static_cast<FireableWeapon*>(&lightning),
        static_cast<FireableWeapon*>(&rockets), static_cast<FireableWeapon*>(&grenades),
        static_cast<FireableWeapon*>(&bolts),   static_cast<FireableWeapon*>(&grapple)};
    // Blasts throw grenades about by chance: it takes a while until no list has to grow.
    for (int round = 0; round < 30; ++round)
        fight(all);
    const std::size_t shots = game.sound.plays.size();
    const test::AllocationCounter counter;
    fight(all);
    EXPECT_EQ(counter.count(), 0);
    EXPECT_GT(game.sound.plays.size(), shots + 80);
    EXPECT_EQ(bodiesOfType("rocketprojectile"), 0);
}

TEST_F(PlayAllocationTest, ProjectilesUsedAgainAreAsNew) {
    GameBody* enemy = addTarget({60, 0});
    enemy->mass = enemy->invMass = 0;
    RocketWeapon rockets;
    const Body* first = nullptr;
    for (int i = 0; i < 2; ++i) {
        rockets.reset();
        rockets.fire(player, player->pos, Vector(1, 0), levelTime());
        auto* rocket = dynamic_cast<GameBody*>(game.world.allBodies().back());
        if (i == 0)
            first = rocket;
        EXPECT_EQ(rocket, first);  // the same object
        EXPECT_FALSE(rocket->dying || rocket->cancleanup || rocket->solid || rocket->isGone());
        EXPECT_EQ(rocket->numLives, 1);
        EXPECT_EQ(rocket->id, "generic");
        EXPECT_FLOAT_EQ(rocket->angle, 0);
        // What a level or play can do to one.
        rocket->id = "changed";
        rocket->angle = 1;
        rocket->inliquid = true;
        rocket->constantvelocity = Vector(0, 1);
        rocket->addTarget(player);
        rocket->hasQuad = true;
        step(10);
        EXPECT_EQ(bodiesOfType("rocketprojectile"), 0);
    }
    EXPECT_EQ(enemy->health, 1000 - 2 * 110);
}

}  // namespace
}  // namespace bc
