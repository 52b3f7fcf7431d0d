// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/GameCategories.h"
#include "gameplay/objects/scenery/NamedPoint.h"
#include "gameplay/objects/scenery/SpawnPoint.h"
#include "gameplay/rules/DefaultGameplay.h"
#include "gameplay/rules/GameBodyFactory.h"
#include "support/PlayFixture.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <set>

namespace bc {
namespace {

class DefaultGameplayTest : public test::PlayFixture {
  protected:
    SpawnPoint* addSpawn(const std::string& id, const Vector& place, bool start = false) {
        auto point = std::make_unique<SpawnPoint>();
        point->id = id;
        point->applyAttributes({{"StartPoint", start ? "true" : "no"}});
        return add(std::move(point), place);
    }
    void startAgain(const std::string& spawn) {
        game.world.removeFromAll(player);
        game.world.removeFromActive(player);
        startLevel(spawn);
    }
};

TEST_F(DefaultGameplayTest, PlacesThePlayerAtANamedOrTheStartPoint) {
    const Vector before = player->pos;
    startAgain("anything");
    EXPECT_TRUE(player->pos.equals(before));
    addSpawn("first", {100, 0});
    addSpawn("home", {200, 0}, true);
    addSpawn("third", {300, 0});
    for (const auto& [name, x] : {std::pair("third", 300.0F), {"", 200.0F}, {"no such", 200.0F}}) {
        startAgain(name);
        EXPECT_FLOAT_EQ(player->pos.x, x) << name;
        EXPECT_FLOAT_EQ(player->renderpos.x, x) << name;
    }
    EXPECT_EQ(systemsOf("itemrespawn2"), 3);
    Body at;
    for (const auto& [x, id] : {std::pair(240.0F, "home"), {150.0F, "first"}, {999.0F, "third"}}) {
        at.setPosition({x, 0});
        EXPECT_EQ(gameplay->nearestSpawnPoint(at)->id, id);
    }
    gameplay->endLevel();
    EXPECT_EQ(gameplay->nearestSpawnPoint(at), nullptr);
    EXPECT_FALSE(GameplaySingleton::instance().levelClock.running);
}

TEST_F(DefaultGameplayTest, PowerUpsGoOnFromLevelToLevel) {
    stepMsecs(5000);
    player->giveQuad(4);
    player->giveInvincibility(0);
    stepMsecs(10000);
    player->nextPainTime = levelTime() + 100;
    endLevel();
    EXPECT_EQ(systemsOf("quadeffect"), 0);
    // What bodies note while they load counts from the start of their level.
    EXPECT_FLOAT_EQ(levelTime(), 0);
    advanceVirtualTicks(4321);  // Loading takes its time.
    startLevel();
    EXPECT_FLOAT_EQ(levelTime(), 0);
    EXPECT_NEAR(player->quadTime, 20000, 1);
    EXPECT_NEAR(player->invincTime, 20000, 1);
    EXPECT_NEAR(player->nextPainTime, 100, 1);
    EXPECT_EQ(systemsOf("quadeffect"), 1);
    EXPECT_EQ(systemsOf("invincibleeffect"), 1);
    stepMsecs(19800);
    EXPECT_TRUE(player->hasQuad && player->hasInvinc);
    stepMsecs(600);
    EXPECT_FALSE(player->hasQuad || player->hasInvinc);
    EXPECT_FLOAT_EQ(player->damageFactor, 1);
    EXPECT_FLOAT_EQ(player->damageTakenFactor, 1);
}

TEST_F(DefaultGameplayTest, PausesDoNotCount) {
    stepMsecs(1000);
    gameplay->pause();
    advanceVirtualTicks(5000);
    gameplay->resume();
    EXPECT_FLOAT_EQ(levelTime(), 1000);
    stepMsecs(100);
    EXPECT_FLOAT_EQ(levelTime(), 1100);
}

TEST_F(DefaultGameplayTest, SavedClocksGoOnAndStayInForceAtTheNextStart) {
    stepMsecs(12000);
    TiXmlElement node("save");
    gameplay->saveGameplayState(node);
    EXPECT_STREQ(node.Attribute("raceactive"), "false");
    endLevel();
    advanceVirtualTicks(60000);
    gameplay->loadGameplayState(node);
    EXPECT_FLOAT_EQ(levelTime(), 12000);
    startLevel();
    EXPECT_FLOAT_EQ(levelTime(), 12000);
    endLevel();
    startLevel();  // Only the next one.
    EXPECT_FLOAT_EQ(levelTime(), 0);
    stepMsecs(500);
    for (const char* text : {"", "1,2,3,4", "junk"}) {
        TiXmlElement bad("save");
        bad.SetAttribute("timer", text);
        gameplay->loadGameplayState(bad);
        EXPECT_FLOAT_EQ(levelTime(), 500) << text;
    }
}

/// Thinks and spawns at every turn, and can go at once.
class Busy final : public GameBody {
  public:
    Busy(float interval, std::vector<std::string>& log) : log_(log) {
        thinks = true;
        thinkInterval = interval;
        gravitymultiplier = 0;
    }
    void update(float) override { log_.push_back(id + " update"); }
    void onThink(float) override {
        log_.push_back(id + " think");
        if (child_) {
            Body* spawned = spawnInWorld(std::move(child_), pos);
            spawned->id = "child";
        }
    }
    std::unique_ptr<Body> child_;

  private:
    std::vector<std::string>& log_;
};

TEST_F(DefaultGameplayTest, BodiesUpdateAndThinkInOrderAndMaySpawnOthers) {
    std::vector<std::string> log;
    const auto addBusy = [&](const char* id, float interval) {
        auto* body = add(std::make_unique<Busy>(interval, log), Vector(500, 0));
        body->id = id;
        return body;
    };
    Busy* first = addBusy("a", 200);
    addBusy("b", 0);
    first->child_ = std::make_unique<Busy>(0.0F, log);
    step();
    EXPECT_EQ(log, (std::vector<std::string>{"a update", "a think", "b update", "b think",
                                             "child update", "child think"}));
    // At the same level time only what thinks in every step does so again.
    log.clear();
    gameplay->update(dt);
    EXPECT_EQ(log, (std::vector<std::string>{"a update", "b update", "b think", "child update",
                                             "child think"}));
    // 200 ms after the last thought is not yet late enough, one step more is.
    log.clear();
    step(8);
    EXPECT_EQ(std::count(log.begin(), log.end(), "a think"), 0);
    step();
    EXPECT_EQ(std::count(log.begin(), log.end(), "a think"), 1);
}

TEST_F(DefaultGameplayTest, DeveloperCommandsMoveThePlayer) {
    add<NamedPoint>({300, 40})->id = "x";
    add<NamedPoint>({100, 0})->id = "y";
    Body* wall = addWall({-400, 0}, 20, 20);
    wall->id = "x";
    struct Case {
        const char* line;
        float px, py, vx, vy;
        const char* says;
    };
    for (const Case& c : {
             Case{"warpto", 5, 6, 7, 8, "warpto incorrect usage, please specify an object id"},
             {"warpto x", -400, 0, 0, 0, nullptr},  // the last of that name
             {"warpto nowhere", 5, 6, 7, 8, nullptr},
             {"warpnearest", 100, 0, 0, 0, nullptr},
             {"fireplayer 5,106", 5, 6, 7, 8,
              "fireplayer incorrect usage, please specify a position and a speed"},
             {"fireplayer 5,106 50", 5, 6, 0, 50, nullptr},
             {"fireplayeratmouse", 5, 6, 7, 8,
              "fireplayeratmouse incorrect usage, please specify a speed"},
             {"fireplayeratmouse 30", 5, 6, -30, 0, nullptr},
             {"getmousepos", 5, 6, 7, 8, "Player Mouse Pos: -45,6,0"},
             {"killvelocity", 5, 6, 0, 0, nullptr},
         }) {
        console.lines.clear();
        player->setPosition({5, 6});
        player->vel = Vector(7, 8);
        player->mouseWorldPos = Vector(-45, 6);
        run(c.line);
        EXPECT_TRUE(player->pos.equals({c.px, c.py})) << c.line;
        EXPECT_TRUE(player->vel.equals({c.vx, c.vy})) << c.line;
        EXPECT_EQ(console.lines.empty() ? "" : console.lines[0], c.says ? c.says : "") << c.line;
    }
    stepMsecs(1500);
    player->setPosition({5, 6});
    player->vel = Vector(7, 8);
    run("playerinfo");
    EXPECT_EQ(get(user() + "/playerinfo.txt"),
              "Player pos, vel: 5,6,0 7,8,0\nPlayer Mouse Pos: -45,6,0\n"
              "Current Level: testlevel : at time: 1500\n");
    EXPECT_EQ(console.lines.size(), 3U);
}

TEST_F(DefaultGameplayTest, WarpNearestSaysWhenThereIsNowhere) {
    run("warpnearest");
    EXPECT_EQ(console.lines, std::vector<std::string>{"Couldn't find a named node"});
}

TEST_F(DefaultGameplayTest, NamedPointsAreNeverSeenOrMet) {
    auto point = std::make_unique<NamedPoint>();
    point->visible = point->solid = true;  // as a level might say
    const NamedPoint* placed = add(std::move(point), {50, 0});
    EXPECT_FALSE(placed->visible || placed->solid);
}

}  // namespace
}  // namespace bc
