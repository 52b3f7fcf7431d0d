// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/Text.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/objects/scenery/Clip.h"
#include "gameplay/weapons/GrappleProjectile.h"
#include "gameplay/weapons/InstantWeapons.h"
#include "gameplay/weapons/LauncherWeapons.h"
#include "gameplay/weapons/MeleeWeapon.h"
#include "gameplay/weapons/SwarmWeapon.h"
#include "support/PlayFixture.h"

#include <gtest/gtest.h>

#include <cmath>

namespace bc {
namespace {

class WeaponsTest : public test::PlayFixture {
  protected:
    bool fire(FireableWeapon& weapon, const Vector& aim = {1, 0}) {
        return weapon.fire(player, player->pos, aim, levelTime());
    }
    [[nodiscard]] float muzzle() const { return player->radius - 4; }
};

TEST_F(WeaponsTest, ShotsWaitForTheDelay) {
    PistolWeapon pistol;
    EXPECT_TRUE(fire(pistol));
    stepMsecs(400);
    EXPECT_FALSE(fire(pistol));
    stepMsecs(100);
    EXPECT_TRUE(fire(pistol));
    pistol.reset();
    EXPECT_TRUE(fire(pistol));
    EXPECT_EQ(pistol.ammoAfterShot(7), 6);
}

TEST_F(WeaponsTest, InstantShotsHitTheFirstThatCanBeHit) {
    GameBody* ghost = addTarget({40, 0});
    ghost->flags.set(bodyflag::untouchable);
    GameBody* air = addTarget({60, 0});
    air->solid = false;
    GameBody* enemy = addTarget({100, 0});
    GameBody* behind = addTarget({150, 0});
    PistolWeapon pistol;
    vars().createOrSet("logshots", "1", "");
    const std::string log = logOf([&] { fire(pistol); });
    EXPECT_EQ(log, "shot pistol by 1 from " + formatFloat(muzzle()) + ",0 to 92,0 hit " +
                       std::to_string(enemy->autoid) + "\n");
    EXPECT_EQ(enemy->health, 980);
    EXPECT_NEAR(enemy->vel.x, 20, 1e-3F);
    for (const GameBody* other : {ghost, air, behind, static_cast<GameBody*>(player)}) {
        EXPECT_GE(other->health, other == player ? 100 : 1000);
        EXPECT_TRUE(other->vel.isZero());
    }
    // What takes no damage is pushed all the same; level geometry just stops the shot.
    enemy->takesDamage = false;
    stepMsecs(500);
    const float speed = enemy->vel.x;
    fire(pistol);
    EXPECT_EQ(enemy->health, 980);
    EXPECT_NEAR(enemy->vel.x, speed + 20, 1e-3F);
    addWall({50, 0}, 10, 100);
    stepMsecs(500);
    EXPECT_NE(logOf([&] { fire(pistol); }).find(" to 45,0 hit "), std::string::npos);
    EXPECT_NEAR(enemy->vel.x, speed + 20, 1e-3F);
}

TEST_F(WeaponsTest, RailsGoThroughBodiesUpToTheWall) {
    GameBody* first = addTarget({60, 0});
    GameBody* second = addTarget({120, 0});
    addWall({200, 0}, 10, 100);
    GameBody* sheltered = addTarget({260, 0});
    player->giveQuad(4);
    RailgunWeapon rail;
    fire(rail);
    EXPECT_EQ(first->health, 600);
    EXPECT_EQ(second->health, 600);
    EXPECT_EQ(sheltered->health, 1000);
    EXPECT_NEAR(second->vel.x, 60, 1e-3F);
    EXPECT_EQ(systemsOf("rail"), 1);
}

struct ScatterCase {
    const char* what;
    std::unique_ptr<FireableWeapon> weapon;
    int shots, damage, sound;
};

TEST_F(WeaponsTest, ScatteredShotsStayWithinTheSpread) {
    // A wall as far as the range, so that hits show how far shots go astray.
    std::vector<ScatterCase> cases;
    cases.push_back({"plasma", std::make_unique<PlasmaWeapon>(), 1, 5, 23});
    cases.push_back({"shotgun", std::make_unique<ShotgunWeapon>(), 10, 10, 21});
    cases.push_back({"chaingun", std::make_unique<ChaingunWeapon>(), 1, 12, -1});
    vars().createOrSet("logshots", "1", "");
    for (ScatterCase& c : cases) {
        c.weapon->range = 400;
        c.weapon->spread = 60;
        float widest = 0;
        int lines = 0;
        for (int i = 0; i < 100; ++i) {
            c.weapon->reset();
            std::vector<std::string> words;
            tokenise(" ,\n", logOf([&] { fire(*c.weapon); }), words);
            for (std::size_t w = 0; w + 2 < words.size(); ++w)
                if (words[w] == "to") {
                    ++lines;
                    EXPECT_NEAR(parseFloat(words[w + 1]), 400 + muzzle(), 0.1F);
                    widest = std::max(widest, std::fabs(parseFloat(words[w + 2])));
                }
        }
        EXPECT_EQ(lines, 100 * c.shots) << c.what;
        EXPECT_LE(widest, 60) << c.what;
        EXPECT_GT(widest, 40) << c.what;
        if (c.sound >= 0) {
            EXPECT_EQ(game.sound.countOf(c.sound), 100) << c.what;
        }
    }
}

TEST_F(WeaponsTest, ShotgunPelletsAddUp) {
    GameBody* enemy = addTarget({30, 0});
    ShotgunWeapon shotgun;
    fire(shotgun);
    EXPECT_EQ(enemy->health, 900);
    EXPECT_NEAR(enemy->vel.x, 80, 1);
    EXPECT_EQ(game.sound.countOf(21), 1);
    enemy->health = 100000;
    shotgun.shots = 1 << 30;  // a definition gone wrong
    shotgun.reset();
    fire(shotgun);
    EXPECT_EQ(enemy->health, 100000 - 10 * ShotgunWeapon::maxShots);
}

TEST_F(WeaponsTest, EnemiesFireOnFixedChannels) {
    GameBody* enemy = addTarget({-500, 0});
    PistolWeapon pistol;
    PlasmaWeapon plasma;
    RocketWeapon rocket;
    MeleeWeapon melee;
    PlasmaPistolWeapon bolts;
    struct Case {
        FireableWeapon& weapon;
        int sound, channel;
    };
    for (const Case& c :
         {Case{pistol, 5, 2}, {plasma, 23, 3}, {rocket, 1, 2}, {melee, 36, 2}, {bolts, 34, 3}})
        for (const bool byEnemy : {false, true}) {
            game.sound.plays.clear();
            c.weapon.reset();
            c.weapon.enemyWeapon = byEnemy;
            c.weapon.fire(enemy, enemy->pos, Vector(-1, 0), levelTime());
            ASSERT_EQ(game.sound.plays.size(), 1U);
            EXPECT_EQ(game.sound.plays[0].id, c.sound);
            EXPECT_EQ(game.sound.plays[0].channel, byEnemy ? c.channel : -1);
            EXPECT_EQ(game.sound.plays[0].loops, 0);
        }
}

TEST_F(WeaponsTest, LightningHumsFromTheFirstShotToTheRelease) {
    LightningWeapon lightning;
    lightning.delay = 50;
    game.sound.freeChannel = 17;
    for (int i = 0; i < 5; ++i) {
        fire(lightning);
        stepMsecs(50);
    }
    ASSERT_EQ(game.sound.countOf(22), 1);
    EXPECT_EQ(game.sound.plays[0].loops, -1);
    lightning.unfire(0);
    lightning.unfire(0);
    EXPECT_EQ(game.sound.stopped, std::vector<int>{17});
    fire(lightning);
    EXPECT_EQ(game.sound.countOf(22), 2);
    lightning.reset();  // a level ends
    EXPECT_EQ(game.sound.stopped.size(), 2U);
    // No channel was free: nothing to stop.
    game.sound.freeChannel = -1;
    fire(lightning);
    lightning.unfire(0);
    EXPECT_EQ(game.sound.stopped.size(), 2U);
}

TEST_F(WeaponsTest, MeleeHurtsEverybodyAroundButFriends) {
    GameBody* near = addTarget({30, 0});
    GameBody* far = addTarget({200, 0});
    GameBody* wielder = addTarget({0, 30});
    MeleeWeapon melee;
    melee.enemyWeapon = true;
    EXPECT_TRUE(melee.fire(wielder, wielder->pos, Vector(1, 0), levelTime()));
    EXPECT_EQ(near->health, 995);
    EXPECT_EQ(player->health, 95);
    EXPECT_EQ(far->health, 1000);
    EXPECT_EQ(wielder->health, 1000);
    wielder->team = BitFlags(team::player);
    melee.reset();
    melee.fire(wielder, wielder->pos, Vector(1, 0), levelTime());
    EXPECT_EQ(player->health, 95);
    EXPECT_EQ(near->health, 990);
}

TEST_F(WeaponsTest, SwarmSizeFollowsTheSwarmLevel) {
    for (const auto& [level, members] :
         {std::pair(1, 3), {2, 3}, {3, 4}, {4, 4}, {5, 5}, {0, 4}, {9, 4}}) {
        player->progress.swarmLevel = level;
        EXPECT_EQ(SwarmWeapon::membersFor(player), members) << level;
    }
    EXPECT_EQ(SwarmWeapon::membersFor(addTarget({300, 0})), 4);
    player->progress.swarmLevel = 5;
    SwarmWeapon swarm;
    EXPECT_TRUE(fire(swarm));
    EXPECT_FALSE(fire(swarm));
    EXPECT_EQ(bodiesOfType("swarmmember"), 5);
    int i = 0;
    for (const Body* body : game.world.allBodies())
        if (body->type == "swarmmember") {
            EXPECT_NEAR(body->pos.x, 18.0F * static_cast<float>(++i) + player->radius, 1e-3F);
            EXPECT_LE(body->vel.length(), 400);
            EXPECT_EQ(dynamic_cast<const GameBody*>(body)->owner, player);
        }
    EXPECT_EQ(systemsOf("swarmburst"), 2);
    // The player's own blasts leave them alone.
    stepMsecs(15400);
    EXPECT_EQ(bodiesOfType("swarmmember"), 0);
    EXPECT_EQ(player->numAlive, 0);
    EXPECT_TRUE(player->children.empty());
    EXPECT_NEAR(player->inventory.weaponObject(weapon::swarm)->delay, 25000, 1);
}

TEST_F(WeaponsTest, TheHookPullsThePlayerIn) {
    addWall({300, 0}, 20, 200);
    player->aim = Vector(1, 0);
    run("+grapple");
    step(2);
    ASSERT_NE(player->grappleHook, nullptr);
    EXPECT_FALSE(player->grappleHook->holding);
    EXPECT_EQ(game.sound.countOf(3), 1);
    step(13);
    ASSERT_TRUE(player->grappleHook->holding);
    EXPECT_NEAR(player->grappleHook->pos.x, 284.5F, 2) << "it sits on the wall";
    EXPECT_EQ(game.sound.countOf(20), 1);
    EXPECT_NEAR(player->vel.length(), 600, 10);
    EXPECT_GT(player->vel.x, 0);
    step(18);
    EXPECT_NEAR(player->vel.length(), 50, 2);
    EXPECT_EQ(bodiesOfType("grappleprojectile"), 1);
    run("-grapple");
    step();
    EXPECT_EQ(bodiesOfType("grappleprojectile"), 0);
    EXPECT_EQ(player->grappleHook, nullptr);
}

TEST_F(WeaponsTest, TheHookFliesThroughWhoeverTakesASideAndHoldsOnClips) {
    addTarget({100, 0});
    auto clip = std::make_unique<Clip>();
    clip->mass = clip->invMass = 0;
    add(std::move(clip), {200, 0});
    addWall({400, 0}, 20, 200);
    player->aim = Vector(1, 0);
    run("+grapple");
    step(15);
    ASSERT_TRUE(player->grappleHook != nullptr && player->grappleHook->holding);
    EXPECT_LT(player->grappleHook->pos.x, 210);
    EXPECT_GT(player->grappleHook->pos.x, 150);
}

TEST_F(WeaponsTest, NoHookOutlivesItsLevelOrItsPlayer) {
    addWall({300, 0}, 20, 200);
    player->aim = Vector(1, 0);
    run("+grapple");
    step(15);
    ASSERT_TRUE(player->grappling);
    player->takeDamage(5000, -1);
    step();
    EXPECT_EQ(bodiesOfType("grappleprojectile"), 0);
    EXPECT_FALSE(player->grappling);
    endLevel();
    startLevel();
    player->aim = Vector(1, 0);
    run("+grapple");
    step(3);
    ASSERT_NE(player->grappleHook, nullptr);
    endLevel();
    EXPECT_EQ(player->grappleHook, nullptr);
    startLevel();
    step(3);
    EXPECT_FALSE(player->grappling);
    run("+grapple");
    step(3);
    EXPECT_TRUE(player->grappling);
}

}  // namespace
}  // namespace bc
