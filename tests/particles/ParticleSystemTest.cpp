// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/Random.h"
#include "particles/ParticleSystem.h"
#include "particles/ParticleSystemObserver.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace bc {
namespace {

ParticleSystemParams plainDefinition() {
    ParticleSystemParams d;
    d.id = "test";
    d.colour = {255, 255, 255, 255};
    d.particleLifeTime = 100;
    return d;
}

void start(ParticleSystem& system, const ParticleSystemParams& d) {
    system.init(std::make_shared<const ParticleSystemParams>(d), 1);
}

int liveAfter(ParticleSystem& system, int steps, float dt) {
    for (int i = 0; i < steps; ++i)
        system.update(dt, false);
    return system.liveCount();
}

struct Flow {
    int rate, limit;
    float dt;
    int steps, least, most;
};

TEST(ParticleSystem, EmitsByRateIntervalAndChance) {
    const Flow flows[] = {
        {10, 64, 0.01F, 10, 1, 1},     // the interval rule, and nothing before one interval
        {10, 64, 0.01F, 100, 10, 25},  // one each 0.1 s, and now and then one by chance
        {240, 4096, 1 / 120.0F, 60, 120, 120},  // two a step
        {100, 4096, 0.1F, 3, 30, 30},           // a long step emits all it stands for
        {1000000, 5, 0.01F, 50, 5, 5},          // never above the pool
        {2147483647, 64, 10.0F, 2, 64, 64},
        {0, 64, 0.01F, 100, 0, 0},
        {-50, 64, 0.01F, 100, 0, 0},
        {50, 0, 0.01F, 100, 0, 0},
        {50, 64, std::numeric_limits<float>::quiet_NaN(), 9, 0, 0},
        {50, 64, -1, 9, 0, 0},
    };
    for (const Flow& flow : flows) {
        seedRandom(7);
        ParticleSystemParams d = plainDefinition();
        d.flowRate = flow.rate;
        d.maxParticles = flow.limit;
        ParticleSystem system;
        start(system, d);
        const int live = liveAfter(system, flow.steps, flow.dt);
        EXPECT_GE(live, flow.least) << flow.rate;
        EXPECT_LE(live, flow.most) << flow.rate;
    }
}

TEST(ParticleSystem, BirthFollowsTheDefinition) {
    seedRandom(3);
    ParticleSystemParams d = plainDefinition();
    d.vel = {100, 50, 10};
    d.velVarLow = d.velVarHigh = {0, 0, 2};
    d.posVarLow = {-3, 0, 0};
    d.posVarHigh = {3, 0, 0};
    d.dimension = {8, 4};
    d.endDimension = {10, 0};
    d.particleLifeTimeLow = 1;
    d.particleLifeTimeHigh = 2;
    d.colourVel = {0, 0, 0, -300};
    d.initialParticles = 200;
    d.maxParticles = 64;
    ParticleSystem point, sphere;
    start(point, d);
    d.generationShape = "sphere";
    start(sphere, d);
    point.setPosition({10, 20, 0.2F}, {1, 2, 3});
    point.emitInitial();
    sphere.emitInitial();
    ASSERT_EQ(point.liveCount(), 64);
    for (int i = 0; i < 64; ++i) {
        const Particle p = point.pool().get(i);
        EXPECT_TRUE(p.vel.equals({100, 50, 12}) && p.second.equals({1, 2, 3}));
        EXPECT_NEAR(p.pos.x, 10, 3);
        EXPECT_EQ(p.pos.z, 0.2F);
        EXPECT_TRUE(p.widthChange == 2 && p.heightChange == -4);
        EXPECT_TRUE(p.lifeTime >= 101 && p.lifeTime < 102);
        const Vector v = sphere.pool().get(i).vel;
        EXPECT_NEAR(std::hypot(v.x / 100, v.y / 50), 1, 1e-4);
        EXPECT_EQ(v.z, 2);
    }
    liveAfter(point, 120, 1 / 60.0F);
    EXPECT_EQ(point.pool().get(0).colour.a, 0);
}

struct Life {
    const char* what;
    float systemLife, remaining, stopTime;
    /// Steps of 1/8 s after which it is found ended; 0: not within 100.
    int endsAt;
};

TEST(ParticleSystem, EndsByItsLifeOrItsRemainingLife) {
    constexpr float none = -100;
    const Life lives[] = {
        {"endless", 0, none, none, 0},
        {"system life", 1, none, none, 8},
        {"time parameter", 0, 0.5F, none, 4},
        {"time parameter longer than its life", 1, 3, none, 9},
        {"time parameter not a number", 0, std::nanf(""), none, 0},
        {"stopped", 0, none, 0.25F, 2},
        {"stopped late", 1, none, 10, 9},
        // Its particles live 2 s; then nothing of it is left.
        {"stopped without a time", 0, none, 0, 17},
    };
    for (const Life& life : lives) {
        ParticleSystemParams d = plainDefinition();
        d.systemLifeTime = life.systemLife;
        d.particleLifeTime = 2;
        d.initialParticles = 2;
        d.flowRate = 8;
        ParticleSystem system;
        start(system, d);
        system.emitInitial();
        if (life.remaining != none)
            system.setRemainingLife(life.remaining);
        if (life.stopTime != none)
            system.stop(life.stopTime);
        int ended = 0;
        for (int step = 1; step <= 100 && ended == 0; ++step)
            ended = system.update(0.125F, false) ? 0 : step;
        EXPECT_EQ(ended, life.endsAt) << life.what;
    }
}

TEST(ParticleSystem, RefillsOnceItsLastParticleDied) {
    ParticleSystemParams d = plainDefinition();
    d.particleLifeTime = 0.5F;
    d.initialParticles = 3;
    ParticleSystem system;
    start(system, d);
    system.setRefill(true);
    EXPECT_EQ(liveAfter(system, 1, 0.1F), 3);
    EXPECT_EQ(liveAfter(system, 6, 0.1F), 3);
    EXPECT_EQ(system.pool().get(0).age, 0);
    system.stop(5);
    EXPECT_EQ(liveAfter(system, 10, 0.1F), 0);
}

TEST(ParticleSystem, PlacesThatAreNotFiniteAreIgnored) {
    ParticleSystem system;
    start(system, plainDefinition());
    system.setPosition({1, 2, 3}, {4, 5, 6});
    for (const float bad : {std::nanf(""), std::numeric_limits<float>::infinity()}) {
        system.setPosition({bad, 0, 0});
        system.setPosition({0, 0, 0}, {0, 0, bad});
        system.emit({0, bad, 0}, {}, 5);
        system.emit({}, {bad, 0, 0}, 5);
    }
    EXPECT_TRUE(system.position().equals({1, 2, 3}) && system.secondPosition().equals({4, 5, 6}));
    EXPECT_EQ(system.liveCount(), 0);
}

struct Listener final : ParticleSystemObserver {
    std::string* log = nullptr;
    char name = '?';
    ParticleSystemObserver* takesOff = nullptr;
    void onParticleSystemEnded(ParticleSystem& system) override {
        *log += name;
        system.removeObserver(takesOff);
        system.removeObserver(this);
    }
};

TEST(ParticleSystem, TellsItsObserversInOrderAndOnce) {
    std::string log;
    Listener a, b, c;
    a.log = b.log = c.log = &log;
    a.name = 'a';
    b.name = 'b';
    c.name = 'c';
    a.takesOff = &c;
    ParticleSystem system;
    start(system, plainDefinition());
    for (Listener* one : {&b, &a, &c, &b})
        system.addObserver(one);
    system.addObserver(nullptr);
    system.removeObserver(&b);  // one of two registrations: the first
    system.notifyObservers();
    system.notifyObservers();
    EXPECT_EQ(log, "ab");
}

}  // namespace
}  // namespace bc
