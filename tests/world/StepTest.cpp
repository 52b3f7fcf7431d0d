// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// One step of the world: gravity, contacts, motion and what goes away on the way.
#include "world/World.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <cmath>
#include <vector>

namespace bc {
namespace {

constexpr float dt = 0.025F;

/// Notes its contacts; may refuse to be stopped.
class Probe final : public Body {
  public:
    struct Contact {
        Vector normal;
        float t;
        const Body* other;
    };
    std::vector<Contact> contacts;
    bool accepts = true;
    void onTouch(const TouchInfo& info) override {
        contacts.push_back({*info.normal, info.t, info.other});
    }
    bool acceptsCollision(const Body&) const override { return accepts; }
};

class StepTest : public testing::Test {
  protected:
    StepTest() { world.quadtree().init(Vector(), 4000, 2); }

    Probe* add(float x, float y, float w, float h, float mass) {
        auto body = std::make_unique<Probe>();
        body->makeBox(w, h);
        body->mass = mass;
        body->invMass = mass > 0 ? 1 / mass : 0;
        body->setPosition(Vector(x, y));
        body->updateGeometry();
        body->computeBounds();
        return static_cast<Probe*>(world.spawnBody(std::move(body)));
    }
    void step(float gravity = 0) { world.simulate(dt, gravity); }

    World world;
};

TEST_F(StepTest, ABoxMeetsAWallWithinTheStep) {
    // 2.5 units of motion at a wall 1 unit away: met at 0.4 of the step, in eighths 0.375.
    Probe* box = add(0, 0, 16, 16, 100);
    Probe* wall = add(17, 0, 16, 400, 0);
    box->vel.set(100, 0);
    box->updateSweptBounds(dt);
    box->updateSweptBounds(dt);
    world.quadtree().reinsert(*box);
    world.freezeVelocities();
    world.collideBody(box, dt);
    ASSERT_EQ(box->contacts.size(), 1U);
    EXPECT_FLOAT_EQ(box->contacts[0].t, 0.375F);
    EXPECT_FLOAT_EQ(box->contacts[0].normal.x, -1);
    EXPECT_NEAR(box->vel.x, -5, 0.001) << "thrown back with a twentieth of its speed";
    ASSERT_EQ(wall->contacts.size(), 1U);
    EXPECT_EQ(wall->contacts[0].other, box);
}

TEST_F(StepTest, TouchingIsNoContactAndOverlapIsUndone) {
    Probe* left = add(0, 0, 16, 16, 100);
    Probe* right = add(16, 0, 16, 16, 100);
    step();
    EXPECT_TRUE(left->contacts.empty() && right->contacts.empty());

    Probe* a = add(500, 0, 16, 16, 100);
    Probe* b = add(515, 0, 16, 16, 100);
    world.collideBody(a, dt);
    EXPECT_FLOAT_EQ(a->pos.x, 499.5F);
    EXPECT_FLOAT_EQ(b->pos.x, 515.5F);
    EXPECT_FLOAT_EQ(a->contacts.at(0).t, -1);

    Probe* moved = add(-500, 0, 16, 16, 100);
    add(-485, 0, 16, 16, 0);
    world.collideBody(moved, dt);
    EXPECT_FLOAT_EQ(moved->pos.x, -501);
}

TEST_F(StepTest, ContactsWithoutSolidBodiesAreOnlyTold) {
    Probe* ghost = add(0, 0, 16, 16, 100);
    Probe* wall = add(10, 0, 16, 16, 0);
    ghost->accepts = false;
    world.collideBody(ghost, dt);
    EXPECT_EQ(ghost->contacts.size(), 1U);
    EXPECT_EQ(wall->contacts.size(), 1U);
    EXPECT_FLOAT_EQ(ghost->pos.x, 0);
}

TEST_F(StepTest, ABodyRestsOnTheFloorAndKnowsIt) {
    Probe* box = add(0, 8, 16, 16, 100);
    Probe* beside = add(200, 8, 16, 16, 100);
    add(0, -50, 400, 100, 0);
    beside->vel.set(0, 0);
    bool stood = false;
    for (int i = 0; i < 400; ++i) {
        step(-100);
        stood = stood || box->contact;
        ASSERT_GT(box->pos.y, 7) << "it sinks at step " << i;
        ASSERT_LT(std::fabs(box->vel.y), 20);
    }
    EXPECT_TRUE(stood);
    EXPECT_NEAR(box->pos.y, 8, 0.5);
}

TEST_F(StepTest, FarBodiesGatherSpeedButStandStill) {
    Probe* centre = add(0, 0, 16, 16, 100);
    world.setPlayer(centre);
    Probe* edge = add(800, 0, 16, 16, 100);
    Probe* near = add(780, 100, 16, 16, 100);
    for (Probe* body : {edge, near})
        body->alwaysActive = false;
    step(-100);
    EXPECT_FLOAT_EQ(edge->pos.y, 0) << "exactly 800 is outside";
    EXPECT_FLOAT_EQ(edge->vel.y, -2.5F);
    EXPECT_LT(near->pos.y, 100);
    world.setPlayer(nullptr);
}

TEST_F(StepTest, LiquidsSlowOneStep) {
    Probe* box = add(0, 0, 16, 16, 100);
    box->vel.set(40, 0);
    box->inliquid = true;
    box->liquidfriction = 0.5F;
    step();
    EXPECT_FLOAT_EQ(box->pos.x, 0.5F);
    EXPECT_TRUE(box->inliquidlastframe);
    step();
    EXPECT_FLOAT_EQ(box->pos.x, 1.5F);
    EXPECT_FALSE(box->inliquidlastframe);
}

TEST_F(StepTest, SpeedHasALimitAndStaticBodiesNone) {
    Probe* box = add(0, 0, 16, 16, 100);
    box->addVelocity(Vector(3000, 4000));
    EXPECT_NEAR(box->vel.length(), 950, 0.01);
    EXPECT_NEAR(box->vel.x, 570, 0.01);
    Probe* wall = add(100, 0, 16, 16, 0);
    wall->addVelocity(Vector(10, 0));
    wall->applyForce(Vector(10, 0), 1);
    EXPECT_TRUE(wall->vel.isZero());
    wall->vel.set(5, 5);
    step();
    EXPECT_TRUE(wall->vel.isZero());
}

TEST_F(StepTest, WhatGoesIsForgottenByTheRest) {
    Probe* stays = add(0, 0, 16, 16, 100);
    Probe* goes = add(100, 0, 16, 16, 100);
    Probe* last = add(200, 0, 16, 16, 100);
    stays->addTarget(goes);
    stays->addTarget(last);
    stays->addTarget(goes);
    world.markForRemoval(goes);
    last->vel.set(40, 0);
    step();
    EXPECT_EQ(world.allBodies(), (std::vector<Body*>{stays, last}));
    EXPECT_EQ(stays->targetBodies, std::vector<Body*>{last});
    EXPECT_FLOAT_EQ(last->pos.x, 201) << "the walk goes on behind the removed body";
}

TEST_F(StepTest, TheSameWorldTwice) {
    const auto run = [] {
        World w;
        w.quadtree().init(Vector(), 4000, 2);
        std::vector<Body*> bodies;
        for (int i = 0; i < 60; ++i) {
            auto body = std::make_unique<Body>();
            body->makeBox(16, 16);
            body->mass = i % 3 == 0 ? 0.0F : 50.0F;
            body->invMass = i % 3 == 0 ? 0.0F : 0.02F;
            body->setPosition(
                Vector(static_cast<float>(i * 37 % 300), static_cast<float>(i * 53 % 300)));
            body->vel.set(static_cast<float>(i % 7 * 30 - 90), 0);
            body->updateGeometry();
            body->computeBounds();
            bodies.push_back(w.spawnBody(std::move(body)));
        }
        for (int i = 0; i < 200; ++i)
            w.simulate(dt, -60);
        std::string state;
        for (const Body* body : bodies)
            state += body->pos.toString() + ';' + body->vel.toString() + '\n';
        return state;
    };
    EXPECT_EQ(run(), run());
}

}  // namespace
}  // namespace bc
