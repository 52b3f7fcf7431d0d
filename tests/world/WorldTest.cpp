// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// How bodies come into the world and leave it, also while it is being walked.
#include "command/GameVar.h"
#include "core/Random.h"
#include "view/Frustum.h"
#include "world/World.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <limits>
#include <set>
#include <vector>

namespace bc {
namespace {

constexpr float dt = 0.025F;

/// Tells when it is deleted, and does as it is told when touched.
class Witness final : public Body {
  public:
    explicit Witness(std::set<int>& living, int number) : living_(living), number_(number) {
        living_.insert(number_);
    }
    ~Witness() override { living_.erase(number_); }
    void onTouch(const TouchInfo& info) override {
        ++touches;
        if (whenTouched)
            whenTouched(info);
    }
    void onBodyRemoved(const Body& gone) override {
        Body::onBodyRemoved(gone);
        forgotten.push_back(&gone);
    }
    int touches = 0;
    std::function<void(const TouchInfo&)> whenTouched;
    std::vector<const Body*> forgotten;

  private:
    std::set<int>& living_;
    int number_;
};

class WorldTest : public testing::Test {
  protected:
    WorldTest() { world.quadtree().init(Vector(), 4000, 2); }
    std::unique_ptr<Witness> make(float x, float y) {
        auto body = std::make_unique<Witness>(living, ++made);
        body->makeBox(16, 16);
        body->setPosition(Vector(x, y));
        body->updateGeometry();
        body->computeBounds();
        return body;
    }
    Witness* spawn(float x, float y) { return static_cast<Witness*>(world.spawnBody(make(x, y))); }

    int made = 0;
    std::set<int> living;
    World world;
};

TEST_F(WorldTest, NumbersBodiesAndFindsThem) {
    auto player = make(0, 0);
    player->autoid = World::playerId;
    EXPECT_EQ(world.addBody(player.get(), false), 1);
    Witness* first = spawn(100, 0);
    world.setNextBodyId(70);
    Witness* second = spawn(200, 0);
    EXPECT_EQ(first->autoid, 2);
    EXPECT_EQ(second->autoid, 70);
    EXPECT_EQ(world.nextBodyId(), 71);
    EXPECT_EQ(world.findById(70), second);
    EXPECT_EQ(world.findById(1), player.get());
    EXPECT_EQ(world.findById(3), nullptr);
    const std::unique_ptr<Body> taken = world.removeFromAll(first);
    EXPECT_EQ(taken.get(), first);
    EXPECT_EQ(world.removeFromAll(player.get()), nullptr) << "the world does not own it";
    world.removeFromActive(first);
    world.quadtree().remove(*first);
    EXPECT_EQ(world.allBodies(), std::vector<Body*>{second});
    world.setNextBodyId(std::numeric_limits<std::int32_t>::max());
    spawn(300, 0);
    EXPECT_GT(spawn(400, 0)->autoid, 1000000);
}

TEST_F(WorldTest, WhatIsDestroyedInATouchLivesUntilTheEndOfThePass) {
    Witness* a = spawn(0, 0);
    Witness* b = spawn(10, 0);
    Witness* c = spawn(5, 8);
    Witness* later = spawn(300, 0);
    a->whenTouched = [&](const TouchInfo& info) {
        if (info.other != b)
            return;
        world.destroyBody(a);
        world.destroyBody(c);
        EXPECT_EQ(living.size(), 4U);
        EXPECT_TRUE(a->isGone());
        spawn(300, 6);
    };
    world.interactBodies(dt);
    EXPECT_EQ(living, (std::set<int>{2, 4, 5}));
    EXPECT_EQ(b->touches, 1);
    EXPECT_FLOAT_EQ(b->pos.x, 10) << "nothing is resolved with what is gone";
    EXPECT_GT(later->touches, 0) << "the new body has its turn in the same pass";
    EXPECT_EQ(b->forgotten, (std::vector<const Body*>{a, c}));
    EXPECT_EQ(world.activeBodies().size(), 3U);
}

TEST_F(WorldTest, AnotherBodysTurnIsNeitherLostNorDoubled) {
    std::vector<Witness*> bodies;
    for (int i = 0; i < 6; ++i) {
        bodies.push_back(spawn(static_cast<float>(100 * i), 0));
        bodies.back()->vel.set(40, 0);
    }
    world.markForRemoval(bodies[0]);
    world.markForRemoval(bodies[3]);
    // A part of the level that is not simulated goes as well.
    Body* part = make(0, 300).release();
    part->mass = part->invMass = 0;
    world.addBody(std::unique_ptr<Body>(part), false);
    world.markForRemoval(part);
    world.freezeVelocities();
    world.moveBodies(dt);
    EXPECT_EQ(world.allBodies().size(), 4U);
    for (const std::size_t i : {1U, 2U, 4U, 5U})
        EXPECT_FLOAT_EQ(bodies[i]->pos.x, static_cast<float>(100 * i) + 1);
    EXPECT_EQ(living.size(), 4U);
}

TEST_F(WorldTest, ClearingKeepsThePlayerAndNothingElse) {
    auto player = make(0, 0);
    player->category = World::playerCategory;
    world.setPlayer(player.get());
    world.quadtree().insert(*player);
    world.addBody(player.get(), false);
    world.activateBody(player.get());
    Witness* enemy = spawn(50, 0);
    Witness* second = spawn(60, 0);
    second->category = World::playerCategory;
    player->addTarget(enemy);
    world.deleteBodies();
    EXPECT_EQ(world.allBodies(), (std::vector<Body*>{player.get(), second}));
    EXPECT_EQ(world.activeBodies().size(), 2U);
    EXPECT_TRUE(player->targetBodies.empty());
    world.clear();
    EXPECT_EQ(living, std::set<int>{1});
    EXPECT_TRUE(world.allBodies().empty() && world.activeBodies().empty());
    EXPECT_EQ(world.nextBodyId(), World::firstBodyId);
    EXPECT_EQ(player->indexDepth(), -1);
    world.simulate(dt, -100);
    world.setPlayer(nullptr);
}

TEST_F(WorldTest, DrawsBetweenTwoPlacesAndByDepth) {
    Witness* moving = spawn(10, 0);
    moving->oldpos.set(0, 0);
    Witness* still = spawn(500, 0);
    still->mass = 0;
    still->oldpos.set(0, 0);
    world.interpolate(0.25F);
    EXPECT_FLOAT_EQ(moving->renderpos.x, 2.5F);
    EXPECT_FLOAT_EQ(still->renderpos.x, 500);
    Witness* front = spawn(-500, 0);
    moving->zShift = 3;
    front->zShift = -1;
    still->zShift = 3;
    vars().createOrSet("frustumcull", "1", "");
    world.gatherVisible(Frustum());
    world.sortVisible();
    ASSERT_EQ(world.visibleBodies().size(), 3U);
    EXPECT_EQ(world.visibleBodies()[0], front);
    const bool firstMoving = world.visibleBodies()[1] == moving;
    world.sortVisible();
    EXPECT_EQ(world.visibleBodies()[1] == moving, firstMoving) << "equal ones keep their order";
    world.destroyBody(front);
    EXPECT_EQ(world.visibleBodies().size(), 2U);
    vars().clearVars();
}

TEST_F(WorldTest, TheFourPassesAreOneStep) {
    World apart;
    apart.quadtree().init(Vector(), 4000, 2);
    seedRandom(9);
    for (int i = 0; i < 80; ++i) {
        auto one = make(randomRange(-200, 200), randomRange(-200, 200));
        auto other = make(one->pos.x, one->pos.y);
        if (i % 4 == 0)
            one->mass = one->invMass = other->mass = other->invMass = 0;
        world.spawnBody(std::move(one));
        apart.spawnBody(std::move(other));
    }
    for (int i = 0; i < 50; ++i) {
        world.simulate(dt, -80);
        apart.applyGravity(dt, -80);
        apart.freezeVelocities();
        apart.interactBodies(dt);
        apart.moveBodies(dt);
    }
    for (std::size_t i = 0; i < 80; ++i) {
        EXPECT_TRUE(world.allBodies()[i]->pos.equals(apart.allBodies()[i]->pos));
        EXPECT_EQ(world.allBodies()[i]->contact, apart.allBodies()[i]->contact);
    }
}

/// A recorded run must play back the same on every machine and in every build: the hash of where
/// everything is after ten seconds. It changes only with the rules of motion themselves.
TEST(GoldenRun, EndsWhereItAlwaysDid) {
    seedRandom(1);
    World world;
    world.quadtree().init(Vector(), 2048, 2);
    for (int i = 0; i < 400; ++i) {
        auto body = std::make_unique<Body>();
        const bool slab = i % 8 == 0;
        body->makeBox(slab ? randomRange(60, 200) : 16, slab ? randomRange(20, 60) : 16);
        if (slab)
            body->mass = body->invMass = 0;
        body->friction = 0.3F;
        body->bounce = i % 3 == 0 ? 0.9F : 0.05F;
        body->setPosition(Vector(randomRange(-900, 900), randomRange(-900, 900)));
        body->vel.set(randomRange(-250, 250), randomRange(-250, 250));
        body->gravitymultiplier = i % 5 == 0 ? 0 : 1;
        body->updateGeometry();
        body->computeBounds();
        world.spawnBody(std::move(body));
    }
    for (int i = 0; i < 400; ++i)
        world.simulate(dt, -100);
    std::uint64_t hash = 1469598103934665603ULL;
    for (const Body* body : world.allBodies())
        for (const float value : {body->pos.x, body->pos.y, body->vel.x, body->vel.y}) {
            std::uint32_t bits = 0;
            std::memcpy(&bits, &value, sizeof bits);
            hash = (hash ^ bits) * 1099511628211ULL;
        }
    EXPECT_EQ(hash, 1244095401862854432U);
}

}  // namespace
}  // namespace bc
