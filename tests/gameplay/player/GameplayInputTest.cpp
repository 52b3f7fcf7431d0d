// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/player/GameplayInput.h"
#include "gameplay/weapons/FireableWeapon.h"
#include "gameplay/weapons/GrappleProjectile.h"
#include "support/PlayFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace bc {
namespace {

class GameplayInputTest : public test::PlayFixture {
  protected:
    /// What one step of movement adds to the velocity.
    Vector push(const char* keys) {
        input.clearActions();
        run(keys);
        player->vel = Vector();
        control.applyMovement(*player, input.takeIntent(), dt);
        return player->vel;
    }
};

TEST_F(GameplayInputTest, FreeFlightPushesAlongTheHeldKeys) {
    const float full = 300 * dt;
    struct Case {
        const char* keys;
        float x, y;
    };
    for (const Case& c : {
             Case{"+moveright", full, 0},
             {"+moveleft", -full, 0},
             {"+moveup", 0, full},
             {"+movedown", 0, -full},
             {"+moveright;+moveleft", 0, 0},
             {"+moveup;+movedown;+moveleft", -full, 0},
             {"+moveup;-moveup", 0, 0},
         }) {
        const Vector v = push(c.keys);
        EXPECT_NEAR(v.x, c.x, 1e-4F) << c.keys;
        EXPECT_NEAR(v.y, c.y, 1e-4F) << c.keys;
    }
    // The engines' damping is a force against the motion: 0.9 of the speed, whatever the mass.
    player->vel = Vector(200, -100);
    input.clearActions();
    control.applyMovement(*player, input.takeIntent(), dt);
    EXPECT_NEAR(player->vel.x, 200 - 0.9F * 200 / 100 * dt, 1e-4F);
    EXPECT_NEAR(player->vel.y, -100 + 0.9F * 100 / 100 * dt, 1e-4F);
}

TEST_F(GameplayInputTest, PlatformModeRunsJumpsAndRunsOutOfJump) {
    vars().setVar("movemode", "2");
    addWall({0, -18}, 400, 20);
    player->contact = true;
    EXPECT_NEAR(push("+moveright").x, 190 * dt, 1e-4F);
    player->contact = false;
    EXPECT_NEAR(push("+moveright").x, 80 * dt, 1e-4F);
    EXPECT_NEAR(push("+moveup;+movedown").y, 0, 1e-4F);
    // Up lifts for 0.3 s after the last contact, down always pulls, landing restores the jump.
    player->contact = true;
    player->canJump = false;
    int lifted = 0;
    while (push("+moveup").y > 0 && lifted < 100)
        ++lifted;
    // The step in which the 0.3 s are over may fall to either side by rounding.
    EXPECT_TRUE(lifted == 12 || lifted == 13) << lifted;
    EXPECT_NEAR(push("+moveup;+movedown").y, -320 * dt, 1e-4F);
    player->contact = true;
    EXPECT_GT(push("+moveup").y, 0);
}

TEST_F(GameplayInputTest, PlatformModeStandsAndLandsInTheWorld) {
    vars().setVar("movemode", "2");
    gravity = -200;
    addWall({0, -30}, 400, 20);
    stepMsecs(2000);
    EXPECT_TRUE(player->contact);
    EXPECT_NEAR(player->pos.y, -12, 1);
    run("+moveup");
    stepMsecs(500);
    EXPECT_FALSE(player->canJump);
    run("-moveup");
    stepMsecs(4000);
    EXPECT_TRUE(player->contact && player->canJump);
}

// Bodies of a level have their turn before the player; what lies beside is nothing to stand on.
TEST_F(GameplayInputTest, PlatformModeStandsOnACrateThatHasItsTurnFirst) {
    vars().setVar("movemode", "2");
    gravity = -200;
    addWall({0, -60}, 400, 20);
    auto crate = std::make_unique<Body>();
    crate->makeBox(32, 32);
    crate->setPosition({0, -30});
    Body* below = game.world.spawnBody(std::move(crate));
    std::vector<Body*> order = game.world.allBodies();
    std::rotate(order.begin(), std::find(order.begin(), order.end(), below), order.end());
    game.world.reorder(order);
    stepMsecs(2000);
    int standing = 0;
    for (int i = 0; i < 40; ++i) {
        stepMsecs(25);
        standing += player->contact || player->standsOnEarlier ? 1 : 0;
    }
    EXPECT_GT(standing, 3);
    EXPECT_GT(player->pos.y, below->pos.y + 20);
}

TEST_F(GameplayInputTest, BoostBurstsAndRecharges) {
    const float full = 300 * dt;
    const auto boosted = [&](const char* keys) { return push(keys).x > full * 2; };
    // Whole steps of thrust until it has recharged, the key held all the while.
    std::string pattern;
    for (int i = 0; i < 90; ++i)
        pattern += boosted("+moveright;+boost") ? '#' : '.';
    EXPECT_EQ(pattern, std::string(14, '#') + std::string(60, '.') + std::string(14, '#') + "..");
    player->boostLeft = player->boostRecharge = 0;
    EXPECT_NEAR(push("+moveright;+boost").x, 2.5F * full, 1e-3F);
    EXPECT_EQ(systemsOf("boostflame"), 1);
    // The burst goes on without the key, and stops by itself.
    for (int i = 0; i < 13; ++i)
        EXPECT_TRUE(boosted("+moveright")) << i;
    EXPECT_FALSE(boosted("+moveright"));
    EXPECT_EQ(systemsOf("boostflame"), 0);
    // Without a direction it follows the aim.
    player->boostRecharge = 0;
    player->aim = Vector(0.6F, -0.8F);
    const Vector v = push("+boost");
    EXPECT_NEAR(v.x, 2.5F * full * 0.6F, 1e-3F);
    EXPECT_NEAR(v.y, -2.5F * full * 0.8F, 1e-3F);
}

TEST_F(GameplayInputTest, SlowHalvesTheSpeedEachPeriod) {
    run("+slow");
    player->vel = Vector(400, 200);
    step(12);  // 0.3 s
    EXPECT_NEAR(player->vel.x, 100, 1);
    EXPECT_NEAR(player->vel.y, 50, 1);
    run("-slow");
    step(12);
    EXPECT_NEAR(player->vel.x, 100, 1);
}

TEST_F(GameplayInputTest, FiresHeldWeaponsAndLetsGo) {
    player->aim = Vector(1, 0);
    run("+attack");
    step();
    EXPECT_TRUE(player->isfiring);
    EXPECT_EQ(game.sound.countOf(5), 1);
    stepMsecs(1000);  // pistol: every 500 ms
    EXPECT_EQ(game.sound.countOf(5), 3);
    run("-attack");
    step();
    EXPECT_FALSE(player->isfiring);
    player->inventory.giveAllWeapons();
    player->inventory.giveAllAmmo();
    for (const char* line : {"+fire 0", "+fire 12", "+fire x", "+fire -3", "+fire 11"}) {
        game.sound.plays.clear();
        run(line);
        step(5);
        run("-fire");
        step();
        EXPECT_TRUE(game.sound.plays.empty()) << line;
    }
    run("+fire 8x");
    step();
    EXPECT_EQ(actions().weaponId, 8);
    EXPECT_EQ(game.sound.countOf(4), 1);
    EXPECT_EQ(player->inventory.activeWeapon(), 2);
}

TEST_F(GameplayInputTest, GrappleKeyHoldsTheHookBesideOtherWeapons) {
    player->aim = Vector(1, 0);
    for (const char* active : {"pistol", "grapple"}) {
        run(std::string("useitem ") + active);
        run("+grapple");
        step(3);
        EXPECT_TRUE(player->grappling) << active;
        run("+attack");
        step(3);
        run("-attack");
        step(3);
        EXPECT_TRUE(player->grappling) << active;
        EXPECT_EQ(bodiesOfType("grappleprojectile"), 1) << active;
        player->grappleHook->holding = true;
        player->vel = Vector();
        run("-grapple");
        step(2);
        EXPECT_TRUE(player->vel.isZero()) << active << " pulls after it was let go";
        EXPECT_FALSE(player->grappling) << active;
        EXPECT_EQ(bodiesOfType("grappleprojectile"), 0) << active;
    }
    // The same by weapon id.
    run("+fire 1");
    step(2);
    EXPECT_EQ(bodiesOfType("grappleprojectile"), 1);
    run("-fire 1");
    step(2);
    EXPECT_EQ(bodiesOfType("grappleprojectile"), 0);
}

TEST_F(GameplayInputTest, WeaponKeysActOnceAndTogglesSaySo) {
    player->inventory.giveWeapon(weapon::shotgun);
    run("nextweap");
    step(5);
    EXPECT_EQ(player->inventory.activeWeapon(), weapon::shotgun);
    run("prevweap");
    step(5);
    EXPECT_EQ(player->inventory.activeWeapon(), weapon::pistol);
    for (const char* line : {"invis", "invis", "god", "god"})
        run(line);
    EXPECT_EQ(console.lines, (std::vector<std::string>{"Invisible on", "Invisible off",
                                                       "God mode on", "God mode off"}));
}

TEST_F(GameplayInputTest, TheDeadDoNothingAndANewLevelLetsGo) {
    player->aim = Vector(1, 0);
    run("+attack;+moveright");
    player->takeDamage(100000, -1);
    game.sound.plays.clear();
    step(20);
    EXPECT_EQ(game.sound.countOf(5), 0);
    EXPECT_TRUE(player->vel.isZero());
    input.clearActions();
    EXPECT_FALSE(actions().attack || actions().right);
}

}  // namespace
}  // namespace bc
