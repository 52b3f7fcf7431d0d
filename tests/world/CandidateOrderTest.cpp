// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Which candidates a query of the spatial index yields and in what order, compared with a tree
// written down as plainly as can be.
#include "core/Random.h"
#include "world/QuadTree.h"
#include "world/World.h"

#include <gtest/gtest.h>

#include <list>
#include <memory>
#include <vector>

namespace bc {
namespace {

class PlainTree {
  public:
    PlainTree(float x, float y, float size, int depth) : x_(x), y_(y), size_(size) {
        if (depth > 0)
            cut(depth - 1);
    }

    bool insert(Body* body) {
        if (!contains(*body))
            return false;
        if (quarters_.empty()) {
            if (bodies_.size() < 20 || body->entity || size_ < 2 * QuadTree::minNodeSize) {
                bodies_.push_back(body);
                return true;
            }
            cut(0);
            std::list<Body*> all;
            all.swap(bodies_);
            for (Body* other : all)
                insert(other);
        }
        for (const auto& quarter : quarters_)
            if (quarter->insert(body))
                return true;
        bodies_.push_back(body);
        return true;
    }
    void remove(Body* body) {
        bodies_.remove(body);
        for (const auto& quarter : quarters_)
            quarter->remove(body);
    }
    void candidates(const Body& asking, std::vector<Body*>& out) const {
        const float h = size_ / 2;
        const BRect& r = asking.bounds;
        if (!(y_ - h < r.maxY && y_ + h > r.minY && x_ - h < r.maxX && x_ + h > r.minX))
            return;
        for (Body* body : bodies_)
            if ((asking.isMassive() || body->isMassive()) && asking.overlaps(*body))
                out.push_back(body);
        for (const auto& quarter : quarters_)
            quarter->candidates(asking, out);
    }

  private:
    void cut(int depth) {
        const float q = size_ / 4;
        for (const float y : {y_ + q, y_ - q})
            for (const float x : {x_ - q, x_ + q})
                quarters_.push_back(std::make_unique<PlainTree>(x, y, size_ / 2, depth));
    }
    [[nodiscard]] bool contains(const Body& body) const {
        const float h = size_ / 2;
        for (const Vector& corner : body.worldVertices())
            if (!(x_ - h <= corner.x && corner.x <= x_ + h && y_ - h <= corner.y &&
                  corner.y <= y_ + h))
                return false;
        return true;
    }

    float x_, y_, size_;
    std::list<Body*> bodies_;
    std::vector<std::unique_ptr<PlainTree>> quarters_;
};

/// A world and the plain tree, kept in step.
class CandidateOrderTest : public testing::TestWithParam<std::uint32_t> {
  protected:
    static constexpr float size = 4096;

    CandidateOrderTest() {
        seedRandom(GetParam());
        world.quadtree().init(Vector(), size, 2);
    }
    void addRandom(bool massive) {
        auto body = std::make_unique<Body>();
        body->makeBox(massive ? randomRange(4, 20) : randomRange(20, 700),
                      massive ? 16 : randomRange(10, 300));
        if (!massive)
            body->mass = body->invMass = 0;
        body->entity = randomInt() % 4 == 0;
        // Crowded on one side, and some on the very lines between quarters.
        body->setPosition(Vector(randomRange(-1800, randomInt() % 2 == 0 ? 1800 : -1200),
                                 randomRange(-1900, 1900)));
        if (randomInt() % 8 == 0)
            body->setPosition(Vector(512 + body->localVertices[2].x, body->pos.y));
        if (randomInt() % 6 == 0)
            body->angle = randomRange(-3, 3);
        if (massive)
            body->vel.set(randomRange(-900, 900), randomRange(-900, 900));
        body->updateGeometry();
        body->computeBounds();
        plain.insert(world.spawnBody(std::move(body)));
    }
    void step() {
        struct Moved {
            Body* body;
            bool goes;
        };
        std::vector<Moved> walk;
        for (Body* body : world.activeBodies()) {
            if (randomInt() % 10 == 0)
                body->angle += 0.3F;
            walk.push_back({body, body->cancleanup});
        }
        const World::DeferredDeletion deferred(world);
        world.simulate(0.025F, -100);
        for (const Moved& moved : walk) {
            if (!moved.goes && !moved.body->isMassive())
                continue;
            plain.remove(moved.body);
            if (!moved.goes)
                plain.insert(moved.body);
        }
    }
    void compareAll(const char* when) {
        for (const Body* body : world.allBodies()) {
            std::vector<Body*> fast;
            std::vector<Body*> expected;
            world.quadtree().queryCandidates(*body, fast);
            plain.candidates(*body, expected);
            ASSERT_EQ(fast, expected) << when;
            found += expected.size();
        }
    }

    World world;
    PlainTree plain{0, 0, size, 2};
    std::size_t found = 0;
};

TEST_P(CandidateOrderTest, StaysThatOfThePlainTreeWhileTheWorldChanges) {
    for (int i = 0; i < 120; ++i)
        addRandom(false);
    for (int i = 0; i < 500; ++i)
        addRandom(true);
    compareAll("at first");
    for (int round = 0; round < 12; ++round) {
        for (int i = 0; i < 4; ++i)
            step();
        compareAll("after steps");
        for (int i = 0; i < 8; ++i) {
            addRandom(randomInt() % 4 != 0);
            const auto victim = static_cast<std::size_t>(randomInt()) % world.allBodies().size();
            world.markForRemoval(world.allBodies()[victim]);
        }
        if (round == 5)
            world.quadtree().renumber();
        step();
        compareAll("after coming and going");
    }
    EXPECT_GT(found, 20000U);
}

INSTANTIATE_TEST_SUITE_P(Seeds, CandidateOrderTest, testing::Values(1U, 2U, 3U));

/// Hundreds in one place, and bodies far larger than the rest.
TEST(CandidateCrowd, IsFoundWhole) {
    World world;
    world.quadtree().init(Vector(), 4096, 2);
    const auto add = [&](float x, float y, float w, float h) {
        auto body = std::make_unique<Body>();
        body->makeBox(w, h);
        body->setPosition(Vector(x, y));
        body->updateGeometry();
        body->computeBounds();
        return world.spawnBody(std::move(body));
    };
    std::vector<Body*> crowd;
    crowd.reserve(300);
    for (int i = 0; i < 300; ++i)
        crowd.push_back(add(100, 100, 8, 8));
    Body* beam = add(0, 100, 4000, 4);
    const auto candidatesOf = [&](const Body& body) {
        std::vector<Body*> found;
        world.quadtree().queryCandidates(body, found, false);
        return found.size();
    };
    EXPECT_EQ(candidatesOf(*crowd[0]), 300U);
    EXPECT_EQ(candidatesOf(*beam), 300U);
    for (std::size_t i = 0; i < 280; ++i) {
        world.destroyBody(crowd[i * 37 % 300]);
        if (i % 40 == 0) {
            EXPECT_EQ(candidatesOf(*beam), 299 - i);
        }
    }
    Body outside;
    outside.makeBox(9000, 10);
    outside.setPosition(Vector(0, 100));
    outside.updateGeometry();
    outside.computeBounds();
    ASSERT_FALSE(world.quadtree().insert(outside));
    EXPECT_EQ(candidatesOf(outside), 21U) << "what is outside still asks";
}

}  // namespace
}  // namespace bc
