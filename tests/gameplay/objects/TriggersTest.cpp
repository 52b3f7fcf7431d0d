// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/SoundIds.h"
#include "gameplay/objects/movers/AlphaDoor.h"
#include "gameplay/objects/movers/Battery.h"
#include "gameplay/objects/movers/Door.h"
#include "gameplay/objects/triggers/BatterySlot.h"
#include "gameplay/objects/triggers/Checkpoint.h"
#include "gameplay/objects/triggers/MessengerBody.h"
#include "gameplay/objects/triggers/Switch.h"
#include "gameplay/objects/triggers/TargetGroup.h"
#include "support/PlayFixture.h"
#include "world/TouchInfo.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

namespace bc {
namespace {

/// Notes who set it off.
class Witness final : public GameBody {
  public:
    std::vector<GameBody*> activators;
    void onTriggered(GameBody* activator) override { activators.push_back(activator); }
    [[nodiscard]] std::size_t count() const { return activators.size(); }
};

class TriggersTest : public test::PlayFixture {
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

TEST_F(TriggersTest, ATriggerRestsAndComesBackAtAThought) {
    Witness* witness = add<Witness>(away);
    auto body = std::make_unique<Trigger>();
    body->applyAttributes({{"untriggertimer", "500"}});
    Trigger* trigger = add(std::move(body), away);
    trigger->addTarget(add<Body>(Vector(400, 400)));  // no game body: passed over
    trigger->addTarget(witness);
    touch(*trigger, *witness);
    EXPECT_EQ(witness->count(), 0U) << "only the player sets it off";
    touch(*trigger);
    touch(*trigger);
    ASSERT_EQ(witness->count(), 1U);
    EXPECT_EQ(witness->activators[0], trigger);
    stepMsecs(400);
    EXPECT_TRUE(trigger->triggered);
    stepMsecs(400);
    touch(*trigger);
    EXPECT_EQ(witness->count(), 2U);
}

TEST_F(TriggersTest, OnceIsOnceAndRelaysKeepTheFirstActivator) {
    Witness* witness = add<Witness>(away);
    TargetGroup* inner = add<TargetGroup>(away);
    TargetGroup* outer = add<TargetGroup>(away);
    inner->addTarget(witness);
    outer->addTarget(inner);
    auto body = std::make_unique<Trigger>();
    body->applyAttributes({{"triggeronce", "true"}});
    Trigger* trigger = add(std::move(body), away);
    trigger->addTarget(outer);
    touch(*trigger);
    stepMsecs(1000);
    touch(*trigger);
    ASSERT_EQ(witness->count(), 1U);
    EXPECT_EQ(witness->activators[0], trigger);
}

TEST_F(TriggersTest, ACircleOfTargetsEnds) {
    TargetGroup* first = add<TargetGroup>(away);
    TargetGroup* second = add<TargetGroup>(away);
    Witness* witness = add<Witness>(away);
    first->addTarget(second);
    first->addTarget(first);
    first->addTarget(witness);
    second->addTarget(first);
    second->addTarget(second);
    first->trigger(player);
    EXPECT_GE(witness->count(), 1U);
}

TEST_F(TriggersTest, SwitchesShowTheirRest) {
    auto body = std::make_unique<Switch>();
    body->applyAttributes({{"untriggeredimage", "off.png"}, {"triggeredimage", "on.png"}});
    Switch* lever = add(std::move(body), away);
    touch(*lever);
    EXPECT_EQ(lever->texture, "on.png");
    EXPECT_EQ(game.sound.countOf(sound::switchOn), 1);
    stepMsecs(400);
    EXPECT_EQ(lever->texture, "off.png");
}

TEST_F(TriggersTest, CheckpointsAskForASaveByTouchOrByTrigger) {
    Checkpoint* checkpoint = add<Checkpoint>(away);
    checkpoint->trigger(player);
    EXPECT_EQ(game.saveRequests, 1);
    EXPECT_FALSE(checkpoint->triggered);
    touch(*checkpoint);
    touch(*checkpoint);
    EXPECT_EQ(game.saveRequests, 2);
}

TEST_F(TriggersTest, BatteriesGoIntoTheirSlots) {
    BatterySlot* slot = add<BatterySlot>(away);
    Witness* witness = add<Witness>(away);
    slot->addTarget(witness);
    touch(*slot);
    EXPECT_EQ(witness->count(), 0U);
    touch(*slot, *add<Battery>(away));
    EXPECT_EQ(witness->count(), 1U);
}

TEST_F(TriggersTest, MessagesByTouchAndMessengersByTrigger) {
    MessageBody* note = add<MessageBody>(away);
    Witness* witness = add<Witness>(away);
    note->addTarget(witness);
    note->trigger(player);
    EXPECT_TRUE(note->triggered);
    touch(*note);
    EXPECT_EQ(witness->count(), 0U) << "it rests";
    MessengerBody* messenger = add<MessengerBody>(away);
    touch(*messenger);
    EXPECT_FALSE(messenger->triggered);
    messenger->trigger(player);
    EXPECT_TRUE(messenger->triggered);
}

class DoorTest : public TriggersTest {
  protected:
    Door* addDoor(const char* timeOpen) {
        auto body = std::make_unique<Door>();
        body->mass = body->invMass = 0;
        body->entity = true;
        body->applyAttributes({{"openoffset", "0,40"}, {"speed", "100"}, {"timeopen", timeOpen}});
        return add(std::move(body), away);
    }
};

TEST_F(DoorTest, ADoorOpensWaitsAndCloses) {
    Door* door = addDoor("1000");
    door->trigger(player);
    stepMsecs(200);
    EXPECT_TRUE(door->isOpening);
    EXPECT_GT(door->pos.y, away.y + 10);
    door->trigger(player);
    stepMsecs(400);
    EXPECT_TRUE(door->isOpen);
    EXPECT_FLOAT_EQ(door->pos.y, away.y + 40);
    stepMsecs(700);
    EXPECT_FALSE(door->isClosing);
    stepMsecs(400);
    EXPECT_TRUE(door->isClosing);
    door->trigger(player);
    stepMsecs(800);
    EXPECT_FALSE(door->isOpen || door->isClosing || door->isOpening);
    EXPECT_FLOAT_EQ(door->pos.y, away.y);
    EXPECT_TRUE(door->vel.isZero());
}

TEST_F(DoorTest, ADoorWithoutATimeStaysOpenAndNeverOvershoots) {
    Door* door = addDoor("0");
    door->trigger(player);
    float highest = door->pos.y;
    for (int i = 0; i < 200; ++i) {
        step();
        highest = std::max(highest, door->pos.y);
    }
    EXPECT_TRUE(door->isOpen);
    EXPECT_LT(highest, away.y + 40 + 100 * dt + 0.01F);
    EXPECT_FLOAT_EQ(door->pos.y, away.y + 40);
}

TEST_F(DoorTest, AMovingDoorGoesOnAfterASave) {
    Door* door = addDoor("1000");
    door->trigger(player);
    stepMsecs(200);
    TiXmlElement state("custom");
    door->saveState(state);
    auto copy = std::make_unique<Door>();
    copy->mass = copy->invMass = 0;
    copy->makeBox(16, 16);
    copy->loadState(state);
    copy->applyAttributes({{"openoffset", "0,40"}, {"speed", "100"}, {"timeopen", "1000"}});
    Door* restored = copy.get();
    game.world.spawnBody(std::move(copy));
    restored->onRestored();
    for (int i = 0; i < 120; ++i) {
        step();
        ASSERT_FLOAT_EQ(door->pos.y, restored->pos.y) << i;
        ASSERT_EQ(door->isOpen, restored->isOpen) << i;
    }
}

TEST_F(TriggersTest, AnAlphaDoorVanishesForATime) {
    auto body = std::make_unique<AlphaDoor>();
    body->applyAttributes({{"timeopen", "500"}});
    AlphaDoor* door = add(std::move(body), away);
    EXPECT_TRUE(door->solid && door->visible);
    door->trigger(player);
    EXPECT_FALSE(door->solid || door->visible);
    stepMsecs(400);
    door->trigger(player);
    stepMsecs(400);
    EXPECT_TRUE(door->isOpen) << "the second trigger put it off";
    stepMsecs(300);
    EXPECT_FALSE(door->isOpen);
    EXPECT_TRUE(door->solid && door->visible);
}

}  // namespace
}  // namespace bc
