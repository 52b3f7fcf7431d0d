// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// What a query of the spatial index yields, compared with a plain reading of its rules.
#include "core/Random.h"
#include "world/QuadTree.h"
#include "world/World.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

namespace bc {
namespace {

/// Nodes in search order and the bodies of each in list order, as the tree itself tells.
std::vector<Body*> plainCandidates(const QuadTree& tree, const Body& asking) {
    std::vector<Body*> found;
    tree.forEachNode([&](const QuadTree::NodeView& node) {
        const float h = node.size / 2;
        const bool reached =
            node.centreY - h < asking.bounds.maxY && node.centreY + h > asking.bounds.minY &&
            node.centreX - h < asking.bounds.maxX && node.centreX + h > asking.bounds.minX;
        if (!reached)
            return;
        for (Body* body : node.bodies)
            if ((asking.isMassive() || body->isMassive()) && asking.overlaps(*body))
                found.push_back(body);
    });
    return found;
}

class CandidateOrderTest : public testing::Test {
  protected:
    CandidateOrderTest() {
        seedRandom(7);
        world.quadtree().init(Vector(100, -50), 3000, 2);
    }
    Body* addRandom(bool massive) {
        auto body = std::make_unique<Body>();
        const float size = massive ? 16 : randomRange(20, 400);
        body->makeBox(size, randomRange(10, 200));
        if (!massive)
            body->mass = body->invMass = 0;
        body->gravitymultiplier = 0;
        body->setPosition(Vector(randomRange(-1300, 1500), randomRange(-1450, 1350)));
        if (massive)
            body->vel.set(randomRange(-300, 300), randomRange(-300, 300));
        body->updateGeometry();
        body->computeBounds();
        return world.spawnBody(std::move(body));
    }
    void compareAll(const char* when) {
        std::vector<Body*> fast;
        for (const Body* body : world.allBodies()) {
            fast.clear();
            world.quadtree().queryCandidates(*body, fast);
            ASSERT_EQ(fast, plainCandidates(world.quadtree(), *body)) << when;
        }
    }
    World world;
};

TEST_F(CandidateOrderTest, StaysThatOfTheRulesWhileTheWorldChanges) {
    for (int i = 0; i < 150; ++i)
        addRandom(false);
    for (int i = 0; i < 250; ++i)
        addRandom(true);
    compareAll("at first");
    for (int round = 0; round < 12; ++round) {
        for (int i = 0; i < 5; ++i)
            world.simulate(0.025F, 0);
        compareAll("after steps");
        for (int i = 0; i < 6; ++i) {
            addRandom(true);
            const auto victim = static_cast<std::size_t>(randomInt()) % world.allBodies().size();
            world.markForRemoval(world.allBodies()[victim]);
        }
        world.simulate(0.025F, 0);
        compareAll("after coming and going");
    }
}

TEST(QuadTreeRules, SplitsAtTheTwentyFirstButNotForEntities) {
    World world;
    QuadTree& tree = world.quadtree();
    EXPECT_FALSE(tree.init(Vector(), 1000, -1));
    ASSERT_TRUE(tree.init(Vector(), 1000, 0));
    EXPECT_EQ(tree.nodeCount(), 1);
    const auto add = [&](float x, bool entity) {
        auto body = std::make_unique<Body>();
        body->makeBox(4, 4);
        body->entity = entity;
        body->setPosition(Vector(x, 100));
        body->updateGeometry();
        body->computeBounds();
        return world.spawnBody(std::move(body));
    };
    for (int i = 0; i < 20; ++i)
        add(static_cast<float>(-400 + i * 40), false);
    EXPECT_EQ(tree.nodeCount(), 1);
    add(5, true);
    EXPECT_EQ(tree.nodeCount(), 1) << "an entity never splits";
    add(15, false);
    EXPECT_GE(tree.nodeCount(), 5);
    ASSERT_TRUE(tree.init(Vector(), 1000, 2));
    EXPECT_EQ(tree.nodeCount(), 21);
}

TEST(QuadTreeRules, AHundredOnOneSpotEnd) {
    World world;
    world.quadtree().init(Vector(), 1000, 2);
    for (int i = 0; i < 100; ++i) {
        auto body = std::make_unique<Body>();
        body->makeBox(1, 1);
        body->setPosition(Vector(100, 100));
        body->updateGeometry();
        body->computeBounds();
        world.spawnBody(std::move(body));
    }
    EXPECT_LT(world.quadtree().nodeCount(), 200);
    std::vector<Body*> near;
    world.quadtree().queryRadius(Vector(100, 100), 1, near);
    EXPECT_EQ(near.size(), 100U);
}

TEST(QuadTreeRules, ABodyOutsideIsRefused) {
    World world;
    world.quadtree().init(Vector(), 100, 2);
    Body body;
    body.makeBox(10, 10);
    body.setPosition(Vector(48, 0));
    body.updateGeometry();
    body.computeBounds();
    EXPECT_FALSE(world.quadtree().insert(body));
    body.setPosition(Vector(45, 0));
    body.updateGeometry();
    body.computeBounds();
    EXPECT_TRUE(world.quadtree().insert(body)) << "its edge lies on the border";
}

TEST(QuadTreeRules, TracesHitOutlinesAtTheirFirstCrossing) {
    World world;
    world.quadtree().init(Vector(), 1000, 2);
    const auto add = [&](float x, bool solid) {
        auto body = std::make_unique<Body>();
        body->makeBox(20, 20);
        body->mass = body->invMass = 0;
        body->solid = solid;
        body->setPosition(Vector(x, 3));
        body->updateGeometry();
        body->computeBounds();
        return world.spawnBody(std::move(body));
    };
    Body* near = add(100, true);
    Body* ghost = add(200, false);
    Body* far = add(300, true);
    TraceResults hits;
    world.quadtree().trace(Ray(Vector(0, 0), Vector(400, 0)), hits);
    sortByDistance(hits);
    ASSERT_EQ(hits.size(), 2U);
    EXPECT_EQ(hits[0].body, near);
    EXPECT_FLOAT_EQ(hits[0].t, 0.225F);
    EXPECT_FLOAT_EQ(hits[0].distance, 90);
    EXPECT_EQ(hits[1].body, far);
    hits.clear();
    world.quadtree().trace(Ray(Vector(200, 0), Vector(200, 200)), hits, true);
    ASSERT_EQ(hits.size(), 1U);
    EXPECT_EQ(hits[0].body, ghost) << "from inside the line meets the far edge";
    EXPECT_FLOAT_EQ(hits[0].point.y, 13);
}

}  // namespace
}  // namespace bc
