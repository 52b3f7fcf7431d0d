// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/GameCategories.h"
#include "gameplay/objects/scenery/ParticleSystemBody.h"
#include "gameplay/objects/scenery/TextBody.h"
#include "gameplay/weapons/SwarmMember.h"
#include "support/PlayFixture.h"
#include "support/RecordingRenderer.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

namespace bc {
namespace {

class SwarmMemberTest : public test::PlayFixture {
  protected:
    SwarmMember* release(const Vector& position) {
        SwarmMember::release(*player, position, Vector());
        return dynamic_cast<SwarmMember*>(game.world.allBodies().back());
    }
};

TEST_F(SwarmMemberTest, StrengthFollowsTheSwarmLevel) {
    for (const auto& [level, points, health] :
         {std::tuple(1, 10, 60), {3, 20, 100}, {5, 40, 200}, {0, 5, 50}, {7, 5, 50}}) {
        player->progress.swarmLevel = level;
        const SwarmMember* member = release({0, 300});
        EXPECT_EQ(member->weapon.damage, points) << level;
        EXPECT_EQ(member->health, health) << level;
    }
}

TEST_F(SwarmMemberTest, HuntsTheNearestVisibleEnemy) {
    SwarmMember* member = release({0, 300});
    GameBody* near = addTarget({100, 300});
    GameBody* far = addTarget({-200, 300});
    member->think(dt);
    EXPECT_FLOAT_EQ(member->vel.x, 200);
    stepMsecs(3000);
    EXPECT_LT(near->health, 1000);
    EXPECT_EQ(far->health, 1000);
    // A wall between hides it; then there is only the player to follow.
    game.world.destroyBody(near);
    game.world.destroyBody(far);
    GameBody* hidden = addTarget({200, 300});
    addWall({100, 300}, 10, 100);
    member->setPosition({0, 300});
    member->vel = Vector();
    stepMsecs(1000);
    EXPECT_EQ(hidden->health, 1000);
}

TEST_F(SwarmMemberTest, FollowsThePlayerAtADistance) {
    SwarmMember* member = release({0, 250});
    for (const auto& [y, follows] : {std::pair(250.0F, true), {60.0F, false}, {300.0F, false}}) {
        member->setPosition({0, y});
        member->vel = Vector();
        member->think(dt);
        EXPECT_EQ(member->vel.y < 0, follows) << y;
    }
}

TEST_F(SwarmMemberTest, RestoredMembersKeepTheirHealthAndTime) {
    player->progress.swarmLevel = 4;
    SwarmMember* member = release({0, 300});
    member->health = 42;
    member->weapon.nextFireTime = 777;
    TiXmlElement node("custom");
    member->saveState(node);
    // The player's own level is read after the bodies.
    player->progress.swarmLevel = 1;
    SwarmMember again;
    again.loadState(node);
    again.onRestored();
    EXPECT_EQ(again.health, 42);
    EXPECT_EQ(again.weapon.damage, 30);
    EXPECT_FLOAT_EQ(again.deathTime, 15000);
    EXPECT_FLOAT_EQ(again.weapon.nextFireTime, 777);
}

TEST_F(SwarmMemberTest, EffectBodiesSwitchAndSwitchBack) {
    const auto place = [this](const char* on, const char* revert) {
        auto body = std::make_unique<ParticleSystemBody>();
        body->mass = body->invMass = 0;
        body->applyAttributes({{"on", on}, {"reverttimer", revert}, {"SystemId", "fire"}});
        return add(std::move(body), {100, 100});
    };
    ParticleSystemBody* steady = place("true", "0");
    EXPECT_EQ(systemsOf("fire"), 1);
    step(5);
    steady->trigger(player);
    EXPECT_EQ(systemsOf("fire"), 0);
    stepMsecs(5000);
    EXPECT_FALSE(steady->on);
    // Two seconds on, then off again; triggers meanwhile change nothing.
    ParticleSystemBody* timed = place("false", "2");
    timed->trigger(player);
    stepMsecs(1500);
    timed->trigger(player);
    EXPECT_EQ(systemsOf("fire"), 1);
    stepMsecs(600);
    EXPECT_EQ(systemsOf("fire"), 0);
    timed->trigger(player);
    TiXmlElement node("custom");
    timed->saveState(node);
    ParticleSystemBody again;
    again.revertTimer = 2;
    again.systemId = "fire";
    again.loadState(node);
    again.onLoaded();
    EXPECT_EQ(systemsOf("fire"), 2);
    game.world.destroyBody(timed);
    EXPECT_EQ(systemsOf("fire"), 1);
}

TEST_F(SwarmMemberTest, SpawnedTextsRiseAndGo) {
    player->spawnText({10, 20}, "Armour", 12, true, 0.75F, "vera");
    Body* text = game.world.allBodies().back();
    ASSERT_EQ(text->type, "textbody");
    EXPECT_FALSE(text->entity || text->solid || text->isMassive());
    EXPECT_FLOAT_EQ(text->pos.z, 0.2F);
    stepMsecs(1000);
    EXPECT_GT(text->pos.y, 25);
    EXPECT_FLOAT_EQ(text->pos.x, 10);
    EXPECT_EQ(bodiesOfType("textbody"), 1);
    stepMsecs(1100);
    EXPECT_EQ(bodiesOfType("textbody"), 0);
}

TEST_F(SwarmMemberTest, PlacedTextsStayAndAreAnchoredAtTheirLeft) {
    auto text = std::make_unique<TextBody>();
    text->makeBox(100, 40);
    text->mass = text->invMass = 0;
    text->applyAttributes({{"Text", "Mind the gap"}, {"size", "100000"}, {"shadow", "true"}});
    const TextBody* placed = add(std::move(text), {200, 50});
    stepMsecs(5000);
    EXPECT_EQ(bodiesOfType("textbody"), 1);
    EXPECT_LE(placed->size, 512);
    TiXmlElement dump("debug");
    placed->dumpState(dump);
    EXPECT_STREQ(dump.Attribute("anchor"), "150,50,0");
    EXPECT_STREQ(dump.Attribute("text"), "Mind the gap");
}

}  // namespace
}  // namespace bc
