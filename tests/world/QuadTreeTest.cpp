// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// How the spatial index stores bodies, and what it finds along rays, in circles and in view.
#include "core/Random.h"
#include "support/RecordingRenderer.h"
#include "view/Frustum.h"
#include "world/QuadTree.h"
#include "world/World.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>
#include <vector>

namespace bc {
namespace {

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
        body->setPosition(Vector(x, 90));
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
    ASSERT_TRUE(tree.init(Vector(), 200, 2));
    EXPECT_EQ(tree.nodeCount(), 21);
    for (int i = 0; i < 21; ++i)
        add(static_cast<float>(52 + i * 2), false);
    EXPECT_GE(tree.nodeCount(), 25) << "the leaves of a small level split as well";
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

Body* addBox(World& world, float x, float y, float w, float h, float angle = 0) {
    auto body = std::make_unique<Body>();
    body->makeBox(w, h);
    body->mass = body->invMass = 0;
    body->angle = angle;
    body->setPosition(Vector(x, y));
    body->updateGeometry();
    body->computeBounds();
    return world.spawnBody(std::move(body));
}

TEST(QuadTreeRules, InitRefusesWhatIsNoSquare) {
    QuadTree tree;
    EXPECT_FALSE(tree.init(Vector(), 100, QuadTree::maxInitialDepth + 1));
    EXPECT_FALSE(tree.init(Vector(), std::nanf(""), 1));
    EXPECT_FALSE(tree.init(Vector(1e30F, 0), 100, 1));
    EXPECT_FALSE(tree.init(Vector(), -1, 1));
    EXPECT_TRUE(tree.isEmpty());
    Body body;
    EXPECT_FALSE(tree.insert(body)) << "there is no node";
    EXPECT_TRUE(tree.init(Vector(), 0, 2));
    EXPECT_TRUE(tree.insert(body)) << "a body without corners is contained everywhere";
}

TEST(QuadTreeRules, ABodyKnowsOneTreeAndLeavesItWhenItGoes) {
    QuadTree first;
    QuadTree second;
    first.init(Vector(), 1000, 2);
    std::vector<Body*> found;
    {
        Body body;
        const auto moveTo = [&](float x, float y) {
            body.setPosition(Vector(x, y));
            body.updateGeometry();
        };
        body.makeBox(4, 4);
        body.computeBounds();
        second.remove(body);
        ASSERT_TRUE(first.insert(body));
        EXPECT_EQ(body.indexDepth(), 0) << "across the middle";
        second.init(Vector(), 1000, 2);
        ASSERT_TRUE(second.reinsert(body));
        first.queryRadius(Vector(), 10, found);
        EXPECT_TRUE(found.empty());
        moveTo(100, 100);
        ASSERT_TRUE(second.reinsert(body));
        EXPECT_EQ(body.indexDepth(), 2);
        moveTo(2000, 0);
        EXPECT_FALSE(second.reinsert(body));
        EXPECT_EQ(body.indexDepth(), -1);
        moveTo(10, 10);
        EXPECT_TRUE(second.reinsert(body)) << "it may come back";
        second.clear();
        EXPECT_EQ(body.indexDepth(), -1);
        second.init(Vector(), 1000, 0);
        second.insert(body);
    }
    second.queryRadius(Vector(), 500, found);
    EXPECT_TRUE(found.empty());
}

/// Every edge of the body in turn, in double precision.
bool crossesPlainly(const Ray& ray, const Body& body, double& first) {
    const std::vector<Vector>& corners = body.worldVertices();
    bool found = false;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Vector& a = corners[i];
        const Vector& b = corners[(i + 1) % corners.size()];
        const double ex = double{b.x} - a.x;
        const double ey = double{b.y} - a.y;
        const double sx = double{a.x} - ray.start.x;
        const double sy = double{a.y} - ray.start.y;
        const double d = double{ray.direction.x} * ey - double{ray.direction.y} * ex;
        const double t = (sx * ey - sy * ex) / d;
        const double u = (sx * ray.direction.y - sy * ray.direction.x) / d;
        if (d != 0 && t >= 0 && t <= 1 && u >= 0 && u <= 1 && (!found || t < first)) {
            found = true;
            first = t;
        }
    }
    return found;
}

TEST(QuadTreeRules, TracesMissNothing) {
    seedRandom(3);
    World world;
    world.quadtree().init(Vector(5000, -300), 2000, 2);
    for (int i = 0; i < 300; ++i)
        addBox(world, randomRange(4100, 5900), randomRange(-1200, 600), randomRange(2, 150),
               randomRange(2, 150), randomRange(-3, 3));
    int hits = 0;
    for (int i = 0; i < 400; ++i) {
        if (i % 40 == 0) {
            Body& moved = *world.allBodies()[static_cast<std::size_t>(i / 4)];
            moved.setPosition(moved.pos + Vector(30, -20));
            moved.updateGeometry();
            world.quadtree().reinsert(moved);
        }
        const Vector from(randomRange(3900, 6100), randomRange(-1400, 800));
        const Vector way(randomRange(-900, 900), i % 7 == 0 ? 0 : randomRange(-900, 900));
        const Ray ray(from, from + way);
        TraceResults results;
        world.quadtree().trace(ray, results);
        for (const Body* body : world.allBodies()) {
            double t = 0;
            const auto hit = std::find_if(results.begin(), results.end(),
                                          [&](const TraceResult& r) { return r.body == body; });
            const bool expected = body->indexDepth() >= 0 && crossesPlainly(ray, *body, t);
            ASSERT_EQ(hit != results.end(), expected) << "ray " << i;
            if (expected) {
                ++hits;
                EXPECT_NEAR(hit->t, t, 1e-4);
                EXPECT_NEAR(hit->distance, planarDistance(ray.start, hit->point), 0.01);
            }
        }
    }
    EXPECT_GT(hits, 1000);
}

TEST(QuadTreeRules, CirclesReachAsFarAsTheSweptRadius) {
    World world;
    world.quadtree().init(Vector(), 1000, 2);
    Body* body = addBox(world, 100, 0, 6, 8);  // the corners are 5 away
    const auto finds = [&](float x, float radius) {
        std::vector<Body*> found;
        world.quadtree().queryRadius(Vector(x, 0), radius, found);
        return found == std::vector<Body*>{body};
    };
    EXPECT_TRUE(finds(80, 15));
    EXPECT_FALSE(finds(80, 14.9F));
    EXPECT_TRUE(finds(600, 495)) << "from outside the square";
    EXPECT_FALSE(finds(600, 50));
}

TEST(QuadTreeRules, OnlyWhatIsInViewIsGathered) {
    World world;
    world.quadtree().init(Vector(), 1000, 2);
    Body* shown = addBox(world, 300, 300, 10, 10);
    Body* besideIt = addBox(world, 450, 450, 10, 10);
    Body* away = addBox(world, -300, -300, 10, 10);
    Frustum view;
    view.setInternals(20, 1, 0.1F, 4096);
    view.setView(Vector(300, 300, -200), Vector(300, 300, 200), Vector(0, 1, 0));
    const auto gathered = [&](bool nodes, bool bodies) {
        std::vector<Body*> out;
        world.quadtree().gatherVisible(view, nodes, bodies, out);
        EXPECT_EQ(world.quadtree().gatheredBodies(), static_cast<int>(out.size()));
        return out;
    };
    EXPECT_EQ(gathered(false, false), (std::vector<Body*>{shown, besideIt, away}));
    EXPECT_EQ(world.quadtree().visitedNodes(), 21);
    EXPECT_EQ(gathered(true, false), (std::vector<Body*>{shown, besideIt})) << "they share a node";
    EXPECT_EQ(world.quadtree().consideredBodies(), 2);
    EXPECT_LT(world.quadtree().visitedNodes(), 21);
    EXPECT_EQ(gathered(true, true), std::vector<Body*>{shown});
    EXPECT_TRUE(shown->inView);
    EXPECT_FALSE(besideIt->inView);
}

TEST(QuadTreeRules, ShowsItsNodesAsTextAndLines) {
    World world;
    world.quadtree().init(Vector(8, 4), 256, 1);
    addBox(world, 60, 60, 4, 4);
    addBox(world, 8, 4, 4, 4);
    std::ostringstream text;
    world.quadtree().dump(text);
    EXPECT_EQ(text.str(),
              "node 8,4 size 256 bodies 3:generic\n"
              "  node -56,68 size 128 bodies\n"
              "  node 72,68 size 128 bodies 2:generic\n"
              "  node -56,-60 size 128 bodies\n"
              "  node 72,-60 size 128 bodies\n");
    test::RecordingRenderer renderer;
    world.quadtree().drawDebug(renderer, 150, 120);
    EXPECT_EQ(renderer.named("drawColouredLines").size(), 1U);
}

}  // namespace
}  // namespace bc
