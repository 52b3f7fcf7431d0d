// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/race/RaceBlock.h"
#include "gameplay/objects/race/RaceCheckpoint.h"
#include "gameplay/objects/race/RaceEnd.h"
#include "gameplay/objects/race/RaceEndBlock.h"
#include "gameplay/objects/race/RaceReset.h"
#include "gameplay/objects/race/RaceStart.h"
#include "support/PlayFixture.h"
#include "world/TouchInfo.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

namespace bc {
namespace {

class RaceTest : public test::PlayFixture {
  protected:
    void touch(Body& body, Body& other) {
        TouchInfo info;
        info.self = &body;
        info.other = &other;
        body.onTouch(info);
    }
    void touch(Body& body) { touch(body, *player); }
    bool printed(const std::string& line) const {
        return std::find(console.lines.begin(), console.lines.end(), line) != console.lines.end();
    }
    static constexpr Vector away{300, 300};
};

TEST_F(RaceTest, FromStartToFinish) {
    RaceStart* start = add<RaceStart>(away);
    RaceCheckpoint* checkpoint = add<RaceCheckpoint>(away);
    RaceEnd* end = add<RaceEnd>(away);
    touch(*checkpoint);
    touch(*end);
    EXPECT_TRUE(console.lines.empty()) << "nothing is shown while no race runs";
    EXPECT_FALSE(end->triggered);
    touch(*start);
    EXPECT_TRUE(gameplay->race().isActive());
    EXPECT_EQ(start->texture, "data/images/checkers.png");
    stepMsecs(2500);
    EXPECT_EQ(start->texture, "data/images/checkers.png") << "ready again";
    stepMsecs(10000);
    touch(*end);
    EXPECT_TRUE(printed("Race Finished: 12.5"));
    EXPECT_FALSE(gameplay->race().isActive());
    stepMsecs(1000);
    EXPECT_FLOAT_EQ(gameplay->race().time(), 12500) << "the clock stands";
    touch(*start);
    EXPECT_FLOAT_EQ(gameplay->race().time(), 0);
}

class BlockRaceTest : public RaceTest {
  protected:
    BlockRaceTest() {
        start = add<RaceStart>(away);
        auto body = std::make_unique<RaceEndBlock>();
        body->applyAttributes({{"blocks", "a,b"}});
        goal = add(std::move(body), away);
        a = add<RaceBlock>(Vector(-300, 0));
        b = add<RaceBlock>(Vector(-300, 100));
        a->id = "a";
        b->id = "b";
    }
    RaceStart* start;
    RaceEndBlock* goal;
    RaceBlock* a;
    RaceBlock* b;
};

TEST_F(BlockRaceTest, AllBlocksMustBeInDuringOneRace) {
    touch(*goal, *a);
    EXPECT_FALSE(a->counted) << "no race runs";
    touch(*start);
    touch(*goal);
    touch(*goal, *a);
    touch(*goal, *a);
    EXPECT_TRUE(gameplay->race().isActive());
    RaceReset* reset = add<RaceReset>(away);
    placeAt(*a, Vector(0, 500));
    touch(*reset);
    EXPECT_TRUE(a->pos.equals(a->startPos));
    EXPECT_FALSE(gameplay->race().isActive());
    stepMsecs(500);
    touch(*start);
    touch(*goal, *b);
    EXPECT_TRUE(gameplay->race().isActive()) << "the first race's block counts no more";
    touch(*goal, *a);
    EXPECT_FALSE(gameplay->race().isActive());
    EXPECT_TRUE(goal->triggered);
    stepMsecs(500);
    EXPECT_FALSE(goal->triggered);
    EXPECT_FALSE(a->counted || b->counted) << "the goal put the blocks back";
}

TEST_F(BlockRaceTest, ASaveKeepsTheBlocksThatAreIn) {
    touch(*start);
    touch(*goal, *a);
    TiXmlElement state("custom");
    goal->saveState(state);
    auto body = std::make_unique<RaceEndBlock>();
    body->applyAttributes({{"blocks", "a,b"}});
    body->loadState(state);
    body->makeBox(16, 16);
    auto* restored = static_cast<RaceEndBlock*>(game.world.spawnBody(std::move(body)));
    restored->onAfterLoad();
    touch(*restored, *b);
    EXPECT_FALSE(gameplay->race().isActive()) << "with b all are in";
}

}  // namespace
}  // namespace bc
