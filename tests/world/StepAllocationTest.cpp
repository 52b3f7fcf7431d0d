// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// A world that has run for a while asks for no more memory.
#include "core/Random.h"
#include "support/AllocationCounter.h"
#include "world/World.h"

#include <gtest/gtest.h>

namespace bc {
namespace {

TEST(StepAllocation, AWarmStepAsksForNothing) {
    seedRandom(4);
    World world;
    world.quadtree().init(Vector(), 2048, 2);
    const auto wall = [&](float x, float y, float w, float h) {
        auto body = std::make_unique<Body>();
        body->makeBox(w, h);
        body->mass = body->invMass = 0;
        body->setPosition(Vector(x, y));
        body->updateGeometry();
        body->computeBounds();
        world.spawnBody(std::move(body));
    };
    wall(0, -1000, 2040, 40);
    wall(0, 1000, 2040, 40);
    wall(-1000, 0, 40, 1900);
    wall(1000, 0, 40, 1900);
    for (int i = 0; i < 600; ++i) {
        auto body = std::make_unique<Body>();
        body->makeBox(16, 16);
        body->bounce = i % 2 == 0 ? 1 : 0.1F;
        body->friction = 0;
        body->gravitymultiplier = i % 2 == 0 ? 0 : 1;
        body->setPosition(Vector(randomRange(-900, 900), randomRange(-900, 900)));
        body->vel.set(randomRange(-250, 250), randomRange(-250, 250));
        body->updateGeometry();
        body->computeBounds();
        world.spawnBody(std::move(body));
    }
    for (int i = 0; i < 400; ++i)
        world.simulate(0.025F, -100);
    TraceResults hits;
    std::vector<Body*> near;
    hits.reserve(200);
    near.reserve(700);
    const auto look = [&] {
        hits.clear();
        near.clear();
        world.quadtree().trace(Ray(Vector(-900, -880), Vector(900, 700)), hits);
        world.quadtree().queryRadius(Vector(0, 0), 300, near);
    };
    look();
    const test::AllocationCounter counter;
    for (int i = 0; i < 200; ++i) {
        world.simulate(0.025F, -100);
        world.interpolate(0.5F);
    }
    look();
    EXPECT_EQ(counter.count(), 0);
    EXPECT_FALSE(near.empty());
}

}  // namespace
}  // namespace bc
