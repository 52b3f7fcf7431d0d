// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/SoundIds.h"
#include "gameplay/objects/hazards/ExplodingBarrel.h"
#include "gameplay/objects/hazards/Lava.h"
#include "gameplay/objects/hazards/PainBody.h"
#include "gameplay/objects/hazards/Water.h"
#include "gameplay/objects/movers/Attractor.h"
#include "gameplay/objects/movers/JumpPad.h"
#include "gameplay/objects/movers/Teleporter.h"
#include "gameplay/objects/movers/TriggeredJumpPad.h"
#include "gameplay/objects/scenery/SoundBody.h"
#include "gameplay/objects/triggers/LevelChange.h"
#include "gameplay/objects/triggers/Spawner.h"
#include "gameplay/objects/triggers/WaveController.h"
#include "support/PlayFixture.h"
#include "world/TouchInfo.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

namespace bc {
namespace {

class Witness final : public GameBody {
  public:
    std::vector<float> times;
    void onTriggered(GameBody*) override { times.push_back(levelTime()); }
};

class LevelObjectsTest : public test::PlayFixture {
  protected:
    void touch(Body& body, Body& other) {
        TouchInfo info;
        info.self = &body;
        info.other = &other;
        body.onTouch(info);
    }
    void touch(Body& body) { touch(body, *player); }
    static constexpr Vector away{300, 300};
};

TEST_F(LevelObjectsTest, TeleportersNeedATarget) {
    auto body = std::make_unique<Teleporter>();
    body->applyAttributes({{"changevelocity", "true"}, {"exitvelocity", "0,50"}});
    Teleporter* gate = add(std::move(body), away);
    touch(*gate);
    EXPECT_FLOAT_EQ(player->pos.x, 0);
    gate->addTarget(add<GameBody>(Vector(-200, 100)));
    touch(*gate);
    EXPECT_FLOAT_EQ(player->pos.x, -200);
    EXPECT_FLOAT_EQ(player->pos.y, 100);
    EXPECT_FLOAT_EQ(player->vel.y, 50);
    EXPECT_EQ(game.sound.countOf(sound::teleport), 2);
}

TEST_F(LevelObjectsTest, JumpPadsThrowAndCanBeSwitched) {
    auto pad = std::make_unique<JumpPad>();
    pad->applyAttributes({{"speed", "0,300"}});
    player->vel.set(40, -10);
    touch(*add(std::move(pad), away));
    EXPECT_FLOAT_EQ(player->vel.x, 0);
    EXPECT_FLOAT_EQ(player->vel.y, 300);
    auto body = std::make_unique<TriggeredJumpPad>();
    body->applyAttributes({{"speed", "10,0"}, {"additive", "true"}, {"untriggertimer", "300"}});
    TriggeredJumpPad* switched = add(std::move(body), away);
    touch(*switched);
    EXPECT_FLOAT_EQ(player->vel.x, 0) << "it starts off";
    switched->trigger(player);
    touch(*switched);
    EXPECT_FLOAT_EQ(player->vel.x, 10);
    EXPECT_FLOAT_EQ(player->vel.y, 300);
    stepMsecs(600);
    EXPECT_FALSE(switched->isOn);
}

TEST_F(LevelObjectsTest, WaterSlowsAndLavaBurnsInTurns) {
    Water* water = add<Water>(away);
    touch(*water);
    touch(*water);
    EXPECT_TRUE(player->inliquid);
    EXPECT_FLOAT_EQ(player->liquidfriction, Liquid::friction);
    EXPECT_EQ(game.sound.countOf(sound::splash), 1) << "one splash for one dive";
    Lava* lava = add<Lava>(away);
    step();
    touch(*lava);
    touch(*lava);
    EXPECT_EQ(player->getHealth(), 90);
    stepMsecs(250);
    touch(*lava);
    EXPECT_EQ(player->getHealth(), 80);
}

TEST_F(LevelObjectsTest, TheSurfaceMovesOnceAFrameHoweverManyDraw) {
    SurfaceWave wave;
    const float first = wave.advance(1000, 0.025F);
    EXPECT_FLOAT_EQ(wave.advance(1000, 0.025F), first);
    EXPECT_GT(wave.advance(1025, 0.025F), first);
}

TEST_F(LevelObjectsTest, PainBodiesRevertUnlessTheyHaveNoTimer) {
    auto body = std::make_unique<PainBody>();
    body->applyAttributes({{"pain", "5"}, {"reverttimer", "500"}});
    PainBody* field = add(std::move(body), away);
    step(8);
    touch(*field);
    EXPECT_EQ(player->getHealth(), 100);
    field->trigger(player);
    touch(*field);
    touch(*field);
    EXPECT_EQ(player->getHealth(), 95);
    stepMsecs(800);
    EXPECT_FALSE(field->on);
    PainBody* lasting = add<PainBody>(away);
    lasting->trigger(player);
    stepMsecs(2000);
    EXPECT_TRUE(lasting->on);
}

TEST_F(LevelObjectsTest, AttractorsPullWhatHasMass) {
    auto body = std::make_unique<Attractor>();
    body->applyAttributes({{"force", "30"}, {"radius", "100"}});
    add(std::move(body), Vector(60, 0));
    GameBody* far = addTarget(Vector(400, 0));
    stepMsecs(200);
    EXPECT_GT(player->vel.x, 20);
    EXPECT_FLOAT_EQ(far->vel.x, 0);
}

TEST_F(LevelObjectsTest, ASpawnerKeepsOneAliveUntilItHasMadeThree) {
    auto body = std::make_unique<Spawner>();
    body->applyAttributes({{"spawnedtype", "battery"},
                           {"maxalive", "1"},
                           {"maxspawned", "3"},
                           {"spawndelay", "500"}});
    Spawner* spawner = add(std::move(body), away);
    stepMsecs(1000);
    EXPECT_EQ(spawner->numSpawned, 0) << "it waits to be set off";
    spawner->trigger(player);
    EXPECT_EQ(bodiesOfType("battery"), 1);
    for (int made = 1; made <= 3; ++made) {
        stepMsecs(1200);
        EXPECT_EQ(spawner->numSpawned, made);
        EXPECT_EQ(bodiesOfType("battery"), 1);
        ASSERT_EQ(spawner->children.size(), 1U);
        GameBody* child = spawner->children[0];
        EXPECT_FALSE(child->localVertices.empty());
        child->die();
        EXPECT_EQ(spawner->numAlive, 0);
    }
    stepMsecs(2000);
    EXPECT_EQ(bodiesOfType("battery"), 0);
    spawner->spawnedType = "Player";
    spawner->trigger(player);
    EXPECT_EQ(spawner->numSpawned, 3) << "the player cannot be spawned";
}

TEST_F(LevelObjectsTest, WavesFollowTheirTimetable) {
    put(data() + "/waves/w.xml",
        "<waves><event time='1000' target='late'/><wave><event target='early'/></wave>"
        "<event time='500' target='nobody'/></waves>");
    Witness* early = add<Witness>(away);
    Witness* late = add<Witness>(away);
    early->id = "early";
    late->id = "late";
    auto body = std::make_unique<WaveController>();
    body->applyAttributes({{"wavefile", "waves/w.xml"}});
    WaveController* waves = add(std::move(body), away);
    stepMsecs(500);
    EXPECT_TRUE(early->times.empty());
    const float start = levelTime();
    waves->trigger(player);
    stepMsecs(400);
    EXPECT_EQ(early->times.size(), 1U);
    EXPECT_TRUE(late->times.empty());
    stepMsecs(1000);
    ASSERT_EQ(late->times.size(), 1U);
    EXPECT_GT(late->times[0] - start, 1000);
    EXPECT_LE(late->times[0] - start, 1225);
    stepMsecs(1000);
    EXPECT_EQ(early->times.size(), 1U);

    // Started again it has nothing left to do, and a saved game does not bring it back.
    waves->trigger(player);
    stepMsecs(300);
    TiXmlElement saved("custom");
    waves->saveState(saved);
    auto restored = std::make_unique<WaveController>();
    restored->applyAttributes({{"wavefile", "waves/w.xml"}});
    restored->loadState(saved);
    add(std::move(restored), away);
    stepMsecs(2000);
    EXPECT_EQ(early->times.size(), 1U);
    EXPECT_EQ(late->times.size(), 1U);
}

TEST_F(LevelObjectsTest, ABarrelTakesItsNeighboursAlong) {
    add<ExplodingBarrel>(Vector(300, 0));
    ExplodingBarrel* first = add<ExplodingBarrel>(Vector(320, 0));
    GameBody* target = addTarget(Vector(340, 0));
    Witness* witness = add<Witness>(away);
    first->addTarget(witness);
    first->takeDamage(5, damage::pistol);
    step(2);
    EXPECT_EQ(bodiesOfType("explodingbarrel"), 0);
    EXPECT_LE(target->getHealth(), 950);
    EXPECT_EQ(witness->times.size(), 1U);
}

TEST_F(LevelObjectsTest, ABarrelWithLivesGoesUpWithEachOfThem) {
    ExplodingBarrel* barrel = add<ExplodingBarrel>(Vector(320, 0));
    barrel->numLives = 2;
    GameBody* target = addTarget(Vector(340, 0));
    for (const int hurt : {1, 2}) {
        const int before = target->getHealth();
        barrel->takeDamage(5, damage::pistol);
        EXPECT_LT(target->getHealth(), before) << hurt;
        placeAt(*target, Vector(340, 0));
        target->vel = Vector();
        stepMsecs(GameBody::limboTime + 300);
    }
    EXPECT_EQ(bodiesOfType("explodingbarrel"), 0);
}

TEST_F(LevelObjectsTest, SoundsStartAndStopWithDistance) {
    auto body = std::make_unique<SoundBody>();
    body->applyAttributes({{"sound", "hum.wav"}});
    add(std::move(body), Vector(600, 0));
    stepMsecs(400);
    EXPECT_TRUE(game.sound.plays.empty());
    placeAt(*player, Vector(100, 0));
    game.sound.freeChannel = -1;
    stepMsecs(250);
    const std::size_t refused = game.sound.plays.size();
    EXPECT_GE(refused, 1U);
    game.sound.freeChannel = 12;
    stepMsecs(800);
    EXPECT_EQ(game.sound.plays.size(), refused + 1) << "tried again until a channel was free";
    placeAt(*player, Vector(-100, 0));
    stepMsecs(400);
    EXPECT_EQ(game.sound.stopped, std::vector<int>{12});
}

TEST_F(LevelObjectsTest, TheWayOutAsksForALevelOrACutscene) {
    auto body = std::make_unique<LevelChange>();
    body->applyAttributes({{"leveltarget", "next"}, {"targetspawn", "door"}});
    LevelChange* exit = add(std::move(body), away);
    touch(*exit, *addTarget(away));
    EXPECT_TRUE(game.mapRequests.empty());
    vars().createOrSet("recordleveltimes", "1", "");
    touch(*exit);
    game.mapLoadPending = true;
    touch(*exit);
    EXPECT_EQ(game.mapRequests, (std::vector<std::string>{"next.xml@door", "next.xml@door"}));
    game.mapLoadPending = false;
    touch(*exit);
    EXPECT_EQ(game.mapRequests.size(), 2U) << "a failed one is not asked for again at once";
    stepMsecs(2100);
    exit->applyAttributes({{"iscutscene", "true"}, {"cutscene", "end"}});
    touch(*exit);
    EXPECT_EQ(game.cutscenes, std::vector<std::string>{"end"});
    const std::string times = get(user() + "/leveltimes.txt");
    EXPECT_EQ(std::count(times.begin(), times.end(), '\n'), 2) << "one line for one way out";
    EXPECT_EQ(times.rfind("testlevel : ", 0), 0U);
}

}  // namespace
}  // namespace bc
