// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "particles/ParticleManager.h"
#include "particles/TextParticleSystem.h"
#include "support/RecordingRenderer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace bc {
namespace {

class ParticleDrawTest : public testing::Test {
  protected:
    ParticleSystemParams base(const std::string& id) {
        ParticleSystemParams d;
        d.id = id;
        d.setTexture("particles/" + id + ".png");
        d.colour = {200, 100, 50, 100};
        d.dimension = d.endDimension = {8, 4};
        d.particleLifeTime = 10;
        d.initialParticles = 1;
        return d;
    }
    ParticleSystem& started(const ParticleSystemParams& d, const Vector& from = {},
                            const Vector& to = {}) {
        manager.addDefinition(d);
        ParticleSystem* system = manager.createFromDefinition(d.id);
        system->setPosition(from, to);
        system->emitAtSelf();
        return *system;
    }
    const std::vector<test::DrawCall>& drawn() {
        renderer.calls.clear();
        manager.draw(renderer);
        return renderer.calls;
    }

    ParticleManager manager;
    test::RecordingRenderer renderer;
};

TEST_F(ParticleDrawTest, OneCallASystemWhateverItHolds) {
    ParticleSystemParams d = base("many");
    d.initialParticles = 300;
    d.maxParticles = 400;
    d.glowSteps = 3;
    for (int i = 0; i < 20; ++i)
        started(d);
    d.id = "empty";
    d.maxParticles = 0;
    started(d);
    d = base("covering");
    d.blendMode = 2;
    started(d);
    d = base("plain");
    d.setTexture("");
    started(d);
    ASSERT_EQ(drawn().size(), 22U);
    for (std::size_t i = 0; i < 20; ++i) {
        const test::DrawCall& call = renderer.calls[i];
        EXPECT_EQ(call.name, "drawQuads");
        EXPECT_EQ(call.corners.size(), 300U * 3 * 4);
        EXPECT_EQ(call.text, "data/particles/many.png");
        EXPECT_TRUE(call.additive && call.blending && !call.depthWrite);
    }
    EXPECT_FALSE(renderer.calls[20].additive);
    EXPECT_FALSE(renderer.calls[21].texturing);
    EXPECT_TRUE(renderer.state.depthWrite && !renderer.state.additive);
    // After the cache was emptied the ids are fetched again.
    renderer.reloadTextures();
    manager.reloadTextures(renderer);
    EXPECT_EQ(drawn()[0].text, "data/particles/many.png");
}

TEST_F(ParticleDrawTest, AQuadStandsRoundItsParticleInEverFainterSteps) {
    ParticleSystemParams d = base("a");
    d.glowSteps = 3;
    started(d, {10, 20, 0.2F});
    const auto& corners = drawn().at(0).corners;
    ASSERT_EQ(corners.size(), 12U);
    const float expected[4][4] = {{6, 22, 0, 1}, {14, 22, 1, 1}, {14, 18, 1, 0}, {6, 18, 0, 0}};
    const int alphas[3] = {100, 67, 34};
    for (std::size_t i = 0; i < 12; ++i) {
        const QuadVertex& v = corners[i];
        EXPECT_EQ(v.x, expected[i % 4][0]);
        EXPECT_EQ(v.y, expected[i % 4][1]);
        EXPECT_EQ(v.z, 0.2F);
        EXPECT_EQ(v.u, expected[i % 4][2]);
        EXPECT_EQ(v.v, expected[i % 4][3]);
        EXPECT_EQ(v.r, 200);
        EXPECT_EQ(v.a, alphas[i / 4]);
    }
}

TEST_F(ParticleDrawTest, WhatIsFadedShrunkOrOutOfViewIsNotDrawn) {
    ParticleSystemParams faded = base("faded");
    faded.colour.a = 0.9F;
    started(faded);
    ParticleSystemParams shrunk = base("shrunk");
    shrunk.dimension = {-1, 4};
    started(shrunk);
    started(base("far"), {5000, 0, 0}, {5000, 0, 0});
    started(base("far but shown"), {5000, 0, 0}, {5000, 0, 0}).setCulled(false);
    renderer.frustum.setInternals(45, 1, 0.1F, 4096);
    renderer.frustum.setView({0, 0, -256}, {0, 0, 256}, {0, 1, 0});
    ASSERT_EQ(drawn().size(), 1U);
    EXPECT_EQ(renderer.calls[0].text, "data/particles/far but shown.png");
}

TEST_F(ParticleDrawTest, BeamsRunFromTheirFirstPlaceToTheSecond) {
    // 150 units: two whole pieces of 64 and the rest; 8 to either side of the line.
    started(base("rail"), {0, 10, 1}, {150, 10, 1});
    const auto rail = drawn().at(0).corners;
    ASSERT_EQ(rail.size(), 12U);
    const float ends[] = {0, 64, 128, 150};
    for (std::size_t i = 0; i < 12; ++i) {
        const std::size_t corner = i % 4;
        EXPECT_NEAR(rail[i].x, ends[i / 4 + (corner < 2 ? 0 : 1)], 1e-3);
        EXPECT_NEAR(rail[i].y, corner == 0 || corner == 3 ? 2 : 18, 1e-3);
        EXPECT_FLOAT_EQ(rail[i].z, 1.2F);
        EXPECT_EQ(rail[i].u, corner == 0 || corner == 3 ? 0 : 1);
        EXPECT_EQ(rail[i].v, corner < 2 ? 0 : 1);
    }
    manager.clearSystems();
    // A streak is as wide as its particle in all, and one piece whatever its length.
    started(base("tracer"), {0, 0, 0}, {0, 900, 0});
    const auto tracer = drawn().at(0).corners;
    ASSERT_EQ(tracer.size(), 4U);
    EXPECT_NEAR(tracer[0].x, 4, 1e-3);
    EXPECT_NEAR(tracer[1].x, -4, 1e-3);
    EXPECT_NEAR(tracer[2].y, 900, 1e-3);
    manager.clearSystems();
    // No length, no beam; an endless one has no more pieces than the batch allows.
    started(base("rail"), {5, 5, 0}, {5, 5, 0});
    EXPECT_TRUE(drawn().empty());
    started(base("rail"), {0, 0, 0}, {1e30F, 0, 0});
    EXPECT_LE(drawn().at(0).corners.size(), QuadBatch::pieceLimit * 4U + 4);
}

TEST_F(ParticleDrawTest, ABoltIsAChainFromEndToEnd) {
    ParticleSystemParams d = base("lightning");
    d.maxParticles = 256;
    d.glowSteps = 2;
    ParticleSystem& bolt = started(d, {0, 0, 0.2F}, {300, 400, 0.2F});
    ASSERT_EQ(bolt.liveCount(), 16);  // 500 units in pieces of 32
    Vector joint(0, 0, 0.2F);
    for (int i = 0; i < 16; ++i) {
        const Particle p = bolt.pool().get(i);
        EXPECT_TRUE(p.pos.equals(joint));
        joint = p.second;
        // Off the line by one unit at most for each joint so far.
        const float along = std::min(32.0F * static_cast<float>(i + 1), 500.0F);
        const Vector off = joint - Vector(0.6F * along, 0.8F * along, 0.2F);
        EXPECT_LE(std::abs(off.x), static_cast<float>(i) + 1.01F);
        EXPECT_LE(std::abs(off.y), static_cast<float>(i) + 1.01F);
    }
    // Three images, a call each; every piece twice a pass and in two passes.
    std::set<std::string> images;
    std::size_t corners = 0;
    for (const test::DrawCall& call : drawn()) {
        images.insert(call.text);
        corners += call.corners.size();
    }
    EXPECT_EQ(renderer.calls.size(), images.size());
    EXPECT_EQ(images, (std::set<std::string>{"data/particles/lightning.png",
                                             "data/particles/lightning2.png",
                                             "data/particles/lightning3.png"}));
    EXPECT_EQ(corners, 16U * 2 * 2 * 4);
    manager.clearSystems();
    EXPECT_EQ(started(d, {0, 0, 0}, {1e9F, 0, 0}).liveCount(), 256);
    EXPECT_EQ(started(d, {7, 7, 0}, {7, 7, 0}).liveCount(), 0);
}

TEST_F(ParticleDrawTest, PlasmaStreamsToItsBurst) {
    ParticleSystemParams d = base("plasma");
    d.initialParticles = 10;
    d.maxParticles = 40;
    ParticleSystem& stream = started(d, {0, 0, 0}, {180, 0, 0});
    EXPECT_EQ(stream.liveCount(), 30);
    EXPECT_EQ(stream.pool().get(0).pos.x, 180);
    EXPECT_NEAR(stream.pool().get(29).pos.x, 171, 1e-3);
    EXPECT_EQ(drawn().size(), 4U);
    EXPECT_EQ(started(d, {0, 0, 0}, {9000, 0, 0}).liveCount(), 40);
}

TEST_F(ParticleDrawTest, TextIsCentredAndScaledToItsHeight) {
    ParticleSystemParams d = base("text");
    d.dimension = d.endDimension = {100, 28};
    auto& text = dynamic_cast<TextParticleSystem&>(started(d, {50, 60, 0.2F}));
    EXPECT_TRUE(drawn().empty());
    text.setText("boom");
    ASSERT_EQ(drawn().size(), 1U);
    EXPECT_EQ(renderer.calls[0].text, "boom");
    // Four letters 12 wide of the largest font (24), scaled to 28.
    const float width = 4 * 12 * 28 / 24.0F;
    EXPECT_EQ(renderer.calls[0].numbers, (std::vector<float>{50 - width / 2, 60 - 14, 0.2F, 24}));
    EXPECT_EQ(renderer.calls[0].colour, RGBAColour(200, 100, 50, 100));
    EXPECT_EQ(renderer.getFontRenderer()->getScale(), 1);
}

}  // namespace
}  // namespace bc
