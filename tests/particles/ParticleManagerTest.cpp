// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "particles/ParticleManager.h"
#include "particles/ParticleSystemObserver.h"
#include "resources/FileSystem.h"
#include "support/AllocationCounter.h"
#include "support/RecordingRenderer.h"
#include "view/Frustum.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>

namespace bc {
namespace {

using testing::HasSubstr;

ParticleSystemParams definition(const std::string& id, int particles) {
    ParticleSystemParams d;
    d.id = id;
    d.colour = {255, 255, 255, 255};
    d.dimension = d.endDimension = {4, 4};
    d.initialParticles = d.maxParticles = particles;
    d.particleLifeTime = 1;
    d.vel = {80, 0, 0};
    return d;
}

/// The camera 256 in front of the origin, a square view 90 degrees wide: -256 to 256 in the plane.
Frustum viewAt(float x, float y) {
    Frustum view;
    view.setInternals(45, 1, 0.1F, 4096);
    view.setView({x, y, -256}, {x, y, 256}, {0, 1, 0});
    return view;
}

std::string logOf(const std::function<void()>& action) {
    testing::internal::CaptureStdout();
    action();
    return testing::internal::GetCapturedStdout();
}

class ParticleManagerTest : public testing::Test {
  protected:
    ParticleManagerTest() { manager.clear(); }
    ~ParticleManagerTest() override { manager.clear(); }

    ParticleManager& manager = particleManager();
    Frustum everything;
};

TEST_F(ParticleManagerTest, AnUnknownNameFallsBackToDefault) {
    const std::string message = "Couldn't find particle def rail, falling back to default\n";
    EXPECT_EQ(logOf([&] { EXPECT_EQ(manager.createFromDefinition("rail"), nullptr); }), message);
    manager.makeDefaultDefinition();
    ParticleSystem* system = nullptr;
    EXPECT_EQ(logOf([&] { system = manager.createFromDefinition("rail"); }), message);
    ASSERT_NE(system, nullptr);
    EXPECT_EQ(system->definitionId(), "default");
    EXPECT_EQ(system->kind(), ParticleKind::rail);
    EXPECT_EQ(system->definition().texturePath(), "data/particles/defaultparticle.tga");
    EXPECT_EQ(system->maxParticles(), 32);
    EXPECT_EQ(system->remainingLife(), 2);
}

TEST_F(ParticleManagerTest, SystemsEndInTheirOrderAndAreUsedAgain) {
    ParticleSystemParams d = definition("a", 10);
    d.systemLifeTime = 0.5F;
    manager.addDefinition(d);
    d.id = "b";
    d.systemLifeTime = 0.25F;
    manager.addDefinition(d);
    ParticleSystem* first = startParticles("b", {1, 2, 3});
    EXPECT_EQ(first->position().z, 3.2F);
    const int firstId = first->id();
    const int secondId = startParticles("a", {})->id();
    EXPECT_EQ(manager.particleCount(), 20);
    manager.update(0.375F, everything);
    EXPECT_EQ(manager.particleCount(), 10);
    EXPECT_EQ(manager.find(firstId), nullptr);
    EXPECT_EQ(manager.find(secondId), manager.systems()[0].get());

    // Another definition, the same object with the same memory, and nothing of its former life.
    manager.addDefinition(definition("c", 3));
    ParticleSystem* third = manager.createFromDefinition("c");
    EXPECT_EQ(third, first);
    EXPECT_EQ(third->liveCount(), 0);
    EXPECT_EQ(third->maxParticles(), 3);
    EXPECT_GT(third->id(), secondId);
    EXPECT_EQ(third->remainingLife(), 0);
    EXPECT_TRUE(third->position().isZero() && third->isEmitting());
}

TEST_F(ParticleManagerTest, NothingIsAllocatedOnceWarm) {
    for (const char* name : {"plain", "rail", "tracer", "lightning", "plasma"}) {
        ParticleSystemParams d = definition(name, 40);
        d.systemLifeTime = 0.5F;
        d.flowRate = 50;
        manager.addDefinition(d);
    }
    const auto burst = [&] {
        for (int i = 0; i < 20; ++i) {
            for (const char* name : {"plain", "rail", "tracer", "lightning", "plasma"})
                startBeam(name, {0, 0, 0}, {300, 40, 0});
        }
        for (int i = 0; i < 70; ++i)
            manager.update(1 / 120.0F, everything);
        EXPECT_TRUE(manager.systems().empty());
    };
    burst();
    const test::AllocationCounter counter;
    burst();
    EXPECT_EQ(counter.count(), 0);
}

TEST_F(ParticleManagerTest, WhatIsOutOfViewMovesTenTimesASecond) {
    ParticleSystemParams slow = definition("slow", 1);
    slow.maxParticles = 2;
    manager.addDefinition(slow);
    const Frustum view = viewAt(0, 0);
    ParticleSystem* shown = startParticles("slow", {0, 0, 0});
    ParticleSystem* hidden = startParticles("slow", {900, 0, 0});
    ParticleSystem* alwaysMoved = startParticles("slow", {900, 0, 0});
    ParticleSystem* leaving = startParticles("slow", {-262, 0, 0});
    alwaysMoved->setCulled(false);
    // Its place is outside, but one of its particles still reaches into the view.
    leaving->emit({-257, 0, 0}, {}, 1);
    const auto travelled = [](const ParticleSystem& s) {
        return s.pool().get(0).pos.x - s.position().x;
    };
    for (int i = 0; i < 3; ++i)
        manager.update(1 / 32.0F, view);
    EXPECT_FLOAT_EQ(travelled(*shown), 7.5F);
    EXPECT_FLOAT_EQ(travelled(*alwaysMoved), 7.5F);
    EXPECT_FLOAT_EQ(travelled(*leaving), 7.5F);
    EXPECT_EQ(travelled(*hidden), 0);
    // More than 0.1 s: it catches up in one step.
    manager.update(1 / 32.0F, view);
    EXPECT_EQ(travelled(*hidden), 0);
    manager.update(1 / 32.0F, view);
    EXPECT_FLOAT_EQ(travelled(*hidden), 12.5F);
    EXPECT_FLOAT_EQ(travelled(*shown), 12.5F);
    manager.update(1 / 32.0F, viewAt(900, 0));
    EXPECT_FLOAT_EQ(travelled(*hidden), 15);
}

struct Restarter final : ParticleSystemObserver {
    std::function<void()> action;
    int told = 0;
    void onParticleSystemEnded(ParticleSystem&) override {
        ++told;
        if (action)
            action();
    }
};

TEST_F(ParticleManagerTest, ObserversMayStartAndClearSystems) {
    ParticleSystemParams d = definition("short", 4);
    d.systemLifeTime = 0.1F;
    manager.addDefinition(d);
    manager.addDefinition(definition("long", 4));
    Restarter restarter, clearer;
    restarter.action = [&] { startParticles("long", {}); };
    clearer.action = [&] { manager.clearSystems(); };
    for (int i = 0; i < 3; ++i)
        startParticles("short", {})->addObserver(&restarter);
    manager.update(0.2F, everything);
    EXPECT_EQ(restarter.told, 3);
    EXPECT_EQ(manager.particleCount(), 12);

    for (const char* name : {"short", "long", "short"})
        startParticles(name, {})->addObserver(&clearer);
    manager.update(0.2F, everything);
    EXPECT_EQ(clearer.told, 3);
    EXPECT_TRUE(manager.systems().empty());

    startParticles("long", {})->addObserver(&restarter);
    manager.clearSystems();
    EXPECT_EQ(manager.systems().size(), 1U);  // the one that the observer started
}

TEST_F(ParticleManagerTest, FloodsAreBounded) {
    manager.addDefinition(definition("big", 4096));
    manager.addDefinition(definition("small", 1));
    std::size_t big = 0;
    const std::string log = logOf([&] {
        for (int i = 0; i < 3000; ++i)
            big += manager.createFromDefinition("big") != nullptr ? 1U : 0U;
    });
    EXPECT_EQ(big, 64U);
    EXPECT_EQ(log, "Too many particle systems, no more are started\n");
    // What is kept of the big ones makes way for others.
    manager.clearSystems();
    logOf([&] {
        for (int i = 0; i < 3000; ++i)
            manager.createFromDefinition("small");
    });
    EXPECT_EQ(manager.systems().size(), ParticleManager::systemLimit);
    // Bursts without an end make way once they have been seen, those that are watched do not.
    for (const auto& system : manager.systems())
        system->emitInitial();
    EXPECT_EQ(manager.createFromDefinition("small"), nullptr);
    struct Watcher final : ParticleSystemObserver {
        void onParticleSystemEnded(ParticleSystem&) override {}
    } watcher;
    const int watched = manager.systems().front()->id();
    manager.systems().front()->addObserver(&watcher);
    for (int i = 0; i < 12; ++i)
        manager.update(0.1F, everything);
    EXPECT_EQ(logOf([&] {
                  for (int i = 0; i < 2000; ++i)
                      ASSERT_NE(startParticles("small", Vector()), nullptr);
              }),
              "");
    EXPECT_NE(manager.find(watched), nullptr);
    manager.clearSystems();  // the watcher goes before the manager does
}

TEST_F(ParticleManagerTest, InvisibleSystemsRunAndAreDrawnByTheirOwner) {
    test::RecordingRenderer renderer;
    manager.addDefinition(definition("stars", 5));
    ParticleSystem* system = startParticles("stars", {9000, 0, 50});
    system->setVisible(false);
    manager.update(0.01F, viewAt(0, 0));
    EXPECT_EQ(system->sinceLastStep(), 0);
    renderer.frustum = viewAt(9000, 0);
    manager.draw(renderer);
    EXPECT_TRUE(renderer.calls.empty());
    manager.drawSystem(renderer, *system);
    ASSERT_EQ(renderer.calls.size(), 1U);
    EXPECT_EQ(renderer.calls[0].corners.size(), 20U);
}

class ParticleFileTest : public ParticleManagerTest {
  protected:
    ParticleFileTest() : user_(files::userFolder()), data_(files::dataFolder()) {
        folder_ = testing::TempDir() + "particlesXXXXXX";
        mkdtemp(folder_.data());
        files::setFolders(folder_, folder_);
    }
    ~ParticleFileTest() override {
        files::setFolders(user_, data_);
        std::filesystem::remove_all(folder_);
    }
    std::string load(const std::string& text) {
        files::replace("data/defs.xml", text);
        const std::string log = logOf([&] { manager.loadDefinitions("data/defs.xml"); });
        // The finder of files says where it found it.
        const std::string found = "Found on disk: data/defs.xml\n";
        return log.starts_with(found) ? log.substr(found.size()) : log;
    }
    const ParticleSystemParams& loaded(const std::string& id) {
        return manager.createFromDefinition(id)->definition();
    }

  private:
    std::string user_, data_, folder_;
};

TEST_F(ParticleFileTest, UnreadableFilesLeaveEverythingAsItWas) {
    manager.makeDefaultDefinition();
    EXPECT_THAT(logOf([&] { manager.loadDefinitions("data/none.xml"); }),
                HasSubstr("Could not load particle defs file: data/none.xml\n"));
    for (const char* text : {"", "<a>", "<a><b id='x'/>", "no xml", "<!-- only -->"})
        EXPECT_THAT(load(text), HasSubstr("Could not load particle defs file: data/defs.xml\n"));
    EXPECT_EQ(manager.definitionCount(), 1U);
}

TEST_F(ParticleFileTest, ReadsEveryKindOfElementAndKeepsTheLaterOfTwo) {
    EXPECT_EQ(load("<x><one id='a' flowRate='7'/><!-- --><two id='b' texture='p/q.png' "
                   "vel='1,2' colour='1,2,3,4' colourVel='1,2,3' dimension='5,6' blendMode='2' "
                   "particleLifeTime='-1' particleLifeTimeVar='-0.5,1.5' glowSteps='3' "
                   "generationShape='sphere'/></x>"),
              "");
    const ParticleSystemParams& b = loaded("b");
    EXPECT_EQ(b.texturePath(), "data/p/q.png");
    EXPECT_TRUE(b.vel.equals({1, 2, 0}));
    EXPECT_EQ(b.colour, RGBAColour(1, 2, 3, 4));
    EXPECT_EQ(b.colourVel, RGBAColour(0, 0, 0, 0));
    EXPECT_EQ(b.particleLifeTimeHigh, 1.5F);
    EXPECT_EQ(b.glowSteps, 3);
    EXPECT_TRUE(b.isAlphaBlended());
    const ParticleSystemParams& a = loaded("a");
    EXPECT_EQ(a.maxParticles, 32);
    EXPECT_EQ(a.glowSteps, 1);
    EXPECT_EQ(a.texturePath(), "");

    // Running systems keep the definition that they were started with.
    load("<x><one id='a' flowRate='9' maxParticles='2'/></x>");
    EXPECT_EQ(a.flowRate, 7);
    EXPECT_EQ(loaded("a").maxParticles, 2);
    EXPECT_EQ(manager.definitionCount(), 2U);
}

TEST_F(ParticleFileTest, HostileFilesAreCutBack) {
    const std::string log = load(
        "<x><p id='huge' maxParticles='1000000' glowSteps='99' flowRate='2147483647' "
        "initialParticles='2147483647' vel='1e38,-1e38,nan' acc='1e38,0,0' "
        "endDimension='1e38,1e38' colourVel='1e38,nan,-1e38,inf' particleLifeTime='1e38'/>"
        "<p id='none' maxParticles='-3' glowSteps='-1' flowRate='-5' initialParticles='-5'/>"
        "</x>");
    EXPECT_EQ(log,
              "Particle def huge: maxParticles 1000000 cut to 4096\n"
              "Particle def huge: glowSteps 99 cut to 16\n");
    test::RecordingRenderer renderer;
    ParticleSystem* huge = startParticles("huge", {});
    ParticleSystem* none = startParticles("none", {});
    for (int i = 0; i < 50; ++i) {
        manager.update(1e5F, everything);
        manager.draw(renderer);
    }
    EXPECT_EQ(none->liveCount(), 0);
    ASSERT_EQ(huge->liveCount(), 4096);
    const Particle p = huge->pool().get(0);
    for (const float value : {p.pos.x, p.pos.y, p.vel.x, p.width, p.colour.r, p.colour.a})
        EXPECT_TRUE(std::isfinite(value)) << value;

    std::string text = "<x><p id='huge' flowRate='4'/>";  // replacing is always possible
    for (int i = 0; i < 1100; ++i)
        text += "<p id='p" + std::to_string(i) + "'/>";
    EXPECT_EQ(load(text + "</x>"), "Too many particle defs, left out from p1022 on\n");
    EXPECT_EQ(manager.definitionCount(), ParticleManager::definitionLimit);
    EXPECT_EQ(loaded("huge").flowRate, 4);
}

}  // namespace
}  // namespace bc
