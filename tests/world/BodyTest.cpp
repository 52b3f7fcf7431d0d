// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// A body by itself: its polygon, its bounds, its text forms and what is attached to it.
#include "core/Random.h"
#include "particles/ParticleManager.h"
#include "view/Frustum.h"
#include "world/Body.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace bc {
namespace {

std::unique_ptr<Body> boxAt(float x, float y, float w, float h) {
    auto body = std::make_unique<Body>();
    body->makeBox(w, h);
    body->setPosition(Vector(x, y));
    body->updateGeometry();
    body->computeBounds();
    return body;
}

TEST(BodyGeometry, CentroidsHoldFarFromTheOrigin) {
    struct Case {
        const char* what;
        std::vector<Vector> corners;
        Vector centre;
        float area;
    };
    const Case cases[] = {
        {"triangle", {{0, 0}, {30, 0}, {0, 30}}, {10, 10}, 450},
        {"the other way round", {{0, 0}, {0, 30}, {30, 0}}, {10, 10}, -450},
        {"an L", {{0, 0}, {20, 0}, {20, 10}, {10, 10}, {10, 30}, {0, 30}}, {7.5F, 12.5F}, 400},
        {"a line", {{0, 0}, {10, 0}, {20, 0}}, {10, 0}, 0},
        {"one corner", {{4, 5}}, {4, 5}, 0},
        {"a thin wall", {{0, 0}, {4000, 0}, {4000, 2}, {0, 2}}, {2000, 1}, 8000},
    };
    for (const Case& c : cases)
        for (const float far : {0.0F, 65536.0F}) {
            Body body;
            for (const Vector& corner : c.corners)
                body.addWorldVertex(corner.x + far, corner.y - far);
            EXPECT_NEAR(body.centroid().x, c.centre.x + far, 0.01) << c.what;
            EXPECT_NEAR(body.centroid().y, c.centre.y - far, 0.01) << c.what;
            EXPECT_NEAR(body.polygonArea(), c.area, 0.01) << c.what;
        }
    EXPECT_TRUE(Body().centroid().isZero());
}

TEST(BodyGeometry, TheWorldBoxIsExactlyThatOfTheCorners) {
    seedRandom(5);
    for (int i = 0; i < 2000; ++i) {
        Body body;
        body.makeBox(randomRange(1, 90), randomRange(1, 90));
        body.angle = i % 3 == 0 ? 0 : randomRange(-4, 4);
        body.setPosition(Vector(randomRange(-9000, 9000), randomRange(-9000, 9000)));
        body.updateGeometry();
        body.computeBounds();
        if (i % 2 == 0) {
            body.frozenvel.set(randomRange(-900, 900), 7);
            body.move(0.025F);
            body.updateGeometry();
        }
        const Box box = body.worldBox();
        const auto& corners = body.worldVertices();
        const auto byX = [](const Vector& a, const Vector& b) { return a.x < b.x; };
        const auto byY = [](const Vector& a, const Vector& b) { return a.y < b.y; };
        const auto [left, right] = std::minmax_element(corners.begin(), corners.end(), byX);
        const auto [low, high] = std::minmax_element(corners.begin(), corners.end(), byY);
        ASSERT_EQ(box.minX, left->x);
        ASSERT_EQ(box.maxX, right->x);
        ASSERT_EQ(box.minY, low->y);
        ASSERT_EQ(box.maxY, high->y);
    }
}

TEST(BodyGeometry, CornersTurnClockwiseAndStayUntilUpdated) {
    Body body;
    body.makeBox(20, 10);
    body.angle = 1.5707963F;
    body.pos.set(100, 50);
    EXPECT_FLOAT_EQ(body.worldVertices()[0].x, -10) << "as of the last update";
    body.updateGeometry();
    EXPECT_NEAR(body.worldVertices()[0].x, 95, 1e-4);
    EXPECT_NEAR(body.worldVertices()[0].y, 60, 1e-4);
    body.computeBounds();
    EXPECT_NEAR(body.bounds.minX, 95, 1e-4);
    EXPECT_NEAR(body.bounds.maxY, 60, 1e-4);
    body.makeCircle(10);
    EXPECT_FLOAT_EQ(body.localVertices[0].x, -10);
    EXPECT_FLOAT_EQ(body.localVertices[0].y, 0);
    EXPECT_EQ(body.colours.size(), body.localVertices.size());
    body.clearGeometry();
    EXPECT_TRUE(body.worldVertices().empty() && body.colours.empty() && body.texCoords.empty());
}

TEST(BodyBounds, ReachBackToWhereTheBodyComesFrom) {
    const auto body = boxAt(100, 200, 20, 10);
    EXPECT_FLOAT_EQ(body->radius, std::sqrt(125.0F));
    struct Case {
        Vector vel;
        float minX, maxX, minY, maxY, sweptRadius;
    };
    const float r = body->radius;
    // In this order: the side that does not grow keeps what the step before gave it.
    const Case cases[] = {
        {{40, 0}, 90, 111, 195, 205, r + 1},
        {{-40, 0}, 88, 110, 195, 205, r + 1},
        {{0, 0}, 90, 110, 195, 205, r},
        {{0, -80}, 90, 110, 193, 205, r + 2},
        {{800, 0}, 90, 130, 195, 207, 20 + 2 * r},
    };
    for (const Case& c : cases) {
        body->vel = c.vel;
        body->updateSweptBounds(0.025F);
        EXPECT_NEAR(body->bounds.minX, c.minX, 1e-3) << c.vel.toString();
        EXPECT_NEAR(body->bounds.maxX, c.maxX, 1e-3) << c.vel.toString();
        EXPECT_NEAR(body->bounds.minY, c.minY, 1e-3) << c.vel.toString();
        EXPECT_NEAR(body->bounds.maxY, c.maxY, 1e-3) << c.vel.toString();
        EXPECT_NEAR(body->sweptRadius, c.sweptRadius, 1e-3) << c.vel.toString();
        EXPECT_NEAR(body->projectedpos.x, 100 + c.vel.x * 0.025F, 1e-3);
    }
    body->vel = Vector();
    body->updateSweptBounds(0);
    EXPECT_TRUE(body->overlaps(*boxAt(119, 200, 20, 10)));
    EXPECT_FALSE(body->overlaps(*boxAt(120, 200, 20, 10))) << "they share an edge";
}

TEST(BodyMotion, NothingThatIsNoNumberComesOfIt) {
    const auto body = boxAt(10, 20, 16, 16);
    const float huge = std::numeric_limits<float>::max();
    body->applyForce(Vector(huge, 0), huge);
    EXPECT_TRUE(body->vel.isZero());
    body->addVelocity(Vector(1e30F, 0));
    EXPECT_NEAR(body->vel.x, 950, 0.01);
    body->setPosition(Vector(std::nanf(""), 0));
    EXPECT_FLOAT_EQ(body->pos.x, 10);
    for (const float speed : {huge, std::numeric_limits<float>::infinity(), std::nanf("")}) {
        body->frozenvel.set(speed, 0);
        body->move(0.025F);
        EXPECT_FLOAT_EQ(body->pos.x, 10);
        EXPECT_TRUE(body->vel.isZero());
    }
    TiXmlElement state("custom");
    state.SetAttribute("pos", "1e20,0,0");
    state.SetAttribute("vel", "3,4,0");
    testing::internal::CaptureStdout();
    body->loadState(state);
    EXPECT_NE(testing::internal::GetCapturedStdout().find("pos: 1e20"), std::string::npos);
    EXPECT_FLOAT_EQ(body->pos.x, 10);
    EXPECT_FLOAT_EQ(body->vel.y, 4);
}

TEST(BodyMotion, AMoverWithoutMassMovesAndCarriesItsOwnVelocity) {
    const auto door = boxAt(0, 0, 10, 10);
    door->mass = 0;
    door->nonmassmover = true;
    door->constantvelocity.set(0, 40);
    door->frozenvel.set(20, 0);
    door->move(0.025F);
    EXPECT_FLOAT_EQ(door->pos.x, 0.5F);
    EXPECT_FLOAT_EQ(door->pos.y, 1);
    EXPECT_TRUE(door->oldpos.isZero());
    door->addVelocity(Vector(5, 5));
    EXPECT_TRUE(door->vel.isZero()) << "no force moves it";
}

TEST(BodyText, DescribesItself) {
    Body target;
    target.id = "lamp";
    Body body;
    body.pos.set(1.5F, -2);
    body.vel.set(0, 40);
    body.id = "door";
    body.targets = "lamp,gone";
    EXPECT_EQ(body.describe(),
              " pos: 1.5,-2,0 vel: 0,40,0 type: default id: door targets: lamp,gone"
              " mass: 100 invMass: 0.01 visible: 1 solid: 1 camera: 0,0,0");
    body.addTarget(&target);
    body.addTarget(&body);
    body.removeTarget(&target);
    body.removeTarget(&target);
    EXPECT_NE(body.describe().find("gone target pointers: door,  mass"), std::string::npos);
}

TEST(BodyText, ReadsItsAttributesWhateverTheirCase) {
    Body body;
    testing::internal::CaptureStdout();
    body.applyAttributes({{"GLOW", "true"}, {"GlowSteps", "3"}, {"other", "x"}});
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "bHasGlow: 1\nglowSteps: 3\n");
    testing::internal::CaptureStdout();
    body.applyAttributes({{"glow", "TRUE"}, {"glowsteps", "2000000000"}});
    testing::internal::GetCapturedStdout();
    EXPECT_FALSE(body.hasGlow);
    EXPECT_LT(body.glowSteps, 1000) << "each is a pass of drawing";
}

TEST(BodyParticles, FollowItAndAreLetGo) {
    ParticleManager manager;
    manager.makeDefaultDefinition();
    ParticleSystem* trail = nullptr;
    ParticleSystem* smoke = nullptr;
    {
        const auto body = boxAt(0, 0, 10, 10);
        trail = manager.createFromDefinition("default");
        smoke = manager.createFromDefinition("default");
        body->attachParticleSystem(*trail);
        body->attachParticleSystem(*smoke);
        body->renderpos.set(30, 40);
        body->vel = body->frozenvel = Vector(40, 0);
        body->move(0.025F);
        EXPECT_FLOAT_EQ(trail->position().y, 40);
        body->detachParticleSystem(*smoke);
        body->detachParticleSystem(*smoke);
        body->renderpos.set(50, 60);
        body->move(0.025F);
        EXPECT_FLOAT_EQ(smoke->position().y, 40);
        ParticleSystem* ending = manager.createFromDefinition("default");
        body->attachParticleSystem(*ending);
        ending->setRemainingLife(0.1F);
        manager.update(0.2F, Frustum());
        EXPECT_EQ(body->particleSystems(), std::vector<ParticleSystem*>{trail});
        EXPECT_TRUE(trail->isEmitting());
    }
    EXPECT_FALSE(trail->isEmitting()) << "the body is gone, its trail fades";
    EXPECT_TRUE(smoke->isEmitting());
    manager.update(5, Frustum());
}

/// Each pass of a step shall touch few cache lines of a body.
TEST(BodyLayout, WhatAStepReadsLiesTogether) {
    const auto body = std::make_unique<Body>();
    const auto lineOf = [&](const void* p) {
        return (static_cast<const char*>(p) - reinterpret_cast<const char*>(body.get())) / 64;
    };
    const auto first = lineOf(&body->mass);
    for (const void* p :
         {static_cast<const void*>(&body->angle), static_cast<const void*>(&body->invMass),
          static_cast<const void*>(&body->pos), static_cast<const void*>(&body->vel.w),
          static_cast<const void*>(&body->contact), static_cast<const void*>(&body->sweptRadius)})
        EXPECT_EQ(lineOf(p), first);
    EXPECT_EQ(lineOf(&body->oldpos), lineOf(&body->projectedpos.y));
    EXPECT_EQ(lineOf(&body->bounds), lineOf(&body->radius));
}

}  // namespace
}  // namespace bc
