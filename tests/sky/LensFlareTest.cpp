// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "sky/LensFlare.h"
#include "sky/SkyServices.h"
#include "support/RecordingRenderer.h"

#include <gtest/gtest.h>

#include <set>

namespace bc {
namespace {

/// Rays by number in the order in which they are cast; those in hidden meet a body.
struct FakeSight final : SightLine {
    std::set<int> hidden;
    std::vector<Vector> targets;
    Vector eye;
    bool isClear(const Vector& from, const Vector& to) override {
        eye = from;
        targets.push_back(to);
        return !hidden.contains(static_cast<int>((targets.size() - 1) % 5));
    }
};

const Vector camera(1000, 500, -256);

class LensFlareTest : public testing::Test {
  protected:
    LensFlareTest() { flare.colour = {200, 100, 50, 10}; }
    void draw(float dt) {
        renderer.calls.clear();
        flare.draw(renderer, camera, dt, &sight);
    }

    FakeSight sight;
    test::RecordingRenderer renderer;
    LensFlare flare;
};

TEST_F(LensFlareTest, ThreeSpritesAndFiveRaysFromTheEye) {
    draw(0);
    ASSERT_EQ(renderer.calls.size(), 3U);
    // Eye at z 256, point 256 right, 256 up and at z -206.
    const float scales[] = {1, 0.5F, 0.25F};
    for (std::size_t i = 0; i < 3; ++i) {
        const test::DrawCall& call = renderer.calls[i];
        const float cx = 1000 + 256 * scales[i];
        const float cy = 500 + 256 * scales[i];
        EXPECT_EQ(call.text, "data/particles/defaultparticle.tga");
        EXPECT_TRUE(call.additive && call.blending && !call.depthWrite);
        ASSERT_EQ(call.corners.size(), 4U);
        const float signs[][2] = {{-1, 1}, {1, 1}, {1, -1}, {-1, -1}};
        for (std::size_t k = 0; k < 4; ++k) {
            EXPECT_NEAR(call.corners[k].x, cx + 16 * signs[k][0], 0.01F);
            EXPECT_NEAR(call.corners[k].y, cy + 16 * signs[k][1], 0.01F);
            EXPECT_NEAR(call.corners[k].z, 256 - 462 * scales[i], 0.01F);
            EXPECT_EQ(call.corners[k].u, signs[k][0] > 0 ? 1 : 0);
            EXPECT_EQ(call.corners[k].v, signs[k][1] > 0 ? 1 : 0);
            EXPECT_EQ(call.corners[k].r, 200);
            EXPECT_EQ(call.corners[k].a, 255);
        }
    }
    EXPECT_EQ(sight.eye.toString(), "1000,500,256");
    const char* targets[] = {"1256,756,-206", "1192,820,-206", "1320,820,-206", "1320,692,-206",
                             "1192,692,-206"};
    ASSERT_EQ(sight.targets.size(), 5U);
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(sight.targets[i].toString(), targets[i]);
}

TEST_F(LensFlareTest, WhatIsHiddenDimsItAndItsCorners) {
    struct Case {
        std::set<int> hidden;
        float strength;
        float weights[4];
    };
    for (const Case& c : {Case{{}, 255, {1, 1, 1, 1}}, Case{{0}, 191.25F, {0.7F, 0.7F, 0.7F, 0.7F}},
                          Case{{1, 2}, 159.375F, {0.3F, 0.3F, 1, 1}},
                          Case{{1, 2, 3, 4}, 63.75F, {0.3F, 0.3F, 0.3F, 0.3F}},
                          Case{{0, 1, 2, 3}, 47.8125F, {0, 0, 0, 0.7F}}}) {
        sight.hidden = c.hidden;
        flare.reset();
        draw(0);
        EXPECT_FLOAT_EQ(flare.strength(), c.strength);
        for (int i = 0; i < 4; ++i) {
            EXPECT_FLOAT_EQ(flare.weight(i), c.weights[i]);
            EXPECT_NEAR(renderer.calls[0].corners[static_cast<std::size_t>(i)].r,
                        200 * c.strength / 255 * c.weights[i], 1);
        }
    }
    sight.hidden = {0, 1, 2, 3, 4};
    flare.reset();
    draw(0);
    EXPECT_TRUE(renderer.calls.empty());
}

TEST_F(LensFlareTest, DimsAndReturnsOverAFifthOfASecond) {
    draw(0);
    sight.hidden = {0, 1, 2, 3, 4};
    const float down[] = {0.75F, 0.5F, 0.25F, 0, 0};
    for (const float part : down) {
        draw(0.05F);
        EXPECT_NEAR(flare.strength(), 255 * part, 0.01F);
    }
    sight.hidden.clear();
    draw(0.1F);
    EXPECT_NEAR(flare.strength(), 127.5F, 0.01F);
    draw(10);
    EXPECT_FLOAT_EQ(flare.strength(), 255);
}

}  // namespace
}  // namespace bc
