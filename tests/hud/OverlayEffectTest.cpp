// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "hud/OverlayEffect.h"
#include "support/RecordingRenderer.h"

#include <gtest/gtest.h>

namespace bc {
namespace {

TEST(OverlayEffect, FadesFromBlackOverTheWholeWindowAndEnds) {
    test::RecordingRenderer renderer(800, 600);
    const auto fade = SimpleFadeOverlay::fromBlack();
    const float alphas[] = {191.25F, 127.5F, 63.75F, 0};
    for (const float alpha : alphas) {
        fade->draw(renderer, 0.25F);
        EXPECT_TRUE(fade->active);
        const test::DrawCall& call = renderer.calls.back();
        EXPECT_EQ(call.colour, RGBAColour(0, 0, 0, alpha));
        EXPECT_EQ(call.numbers, (std::vector<float>{0, 600, 0, 800, 600}));
        EXPECT_TRUE(call.overlay);
        EXPECT_TRUE(call.blending);
        EXPECT_FALSE(call.additive);
        EXPECT_FALSE(call.texturing);
    }
    // Exactly the duration still draws; one instant more does not.
    fade->draw(renderer, 0.001F);
    EXPECT_FALSE(fade->active);
    EXPECT_EQ(renderer.calls.size(), 4U);
    EXPECT_FALSE(renderer.state.overlay);
}

TEST(OverlayEffect, TexturedAdditiveFlashKeepsItsChannelsInRange) {
    test::RecordingRenderer renderer;
    SimpleFadeOverlay flash({255, 10, 20, 150}, -300, 0.5F);
    flash.colourRate.r = 50;
    flash.additive = true;
    flash.textured = true;
    flash.textureName = "cloud.png";
    flash.inOverlayMode = false;
    flash.depth = 3;
    flash.draw(renderer, 0.5F);
    ASSERT_EQ(renderer.calls.size(), 1U);
    const test::DrawCall& call = renderer.calls.front();
    EXPECT_EQ(call.colour, RGBAColour(255, 10, 20, 0));
    EXPECT_EQ(call.text, "cloud.png");
    EXPECT_TRUE(call.additive);
    EXPECT_FALSE(call.overlay);
    EXPECT_EQ(call.numbers[2], 3);
}

}  // namespace
}  // namespace bc
