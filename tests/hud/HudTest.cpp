// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "hud/Hud.h"
#include "support/RecordingRenderer.h"

#include <gtest/gtest.h>

#include <string>

namespace bc {
namespace {

/// A Hud with one image item on the canvas.
struct OneImage {
    Hud hud;
    ImageHudItem* item = nullptr;

    OneImage(int x, int y, int width, int height) {
        auto image = std::make_unique<ImageHudItem>("image");
        item = image.get();
        item->setPosition(x, y);
        item->setSize(width, height);
        item->setImage("a", ".png");
        item->setColour(255, 255, 255, 200);
        hud.addItem(std::move(image));
    }
};

TEST(Hud, ScalesToTheWindowAndTruncates) {
    struct Case {
        int window[2];
        int design[4];
        int pixels[4];
    };
    for (const Case& c : {Case{{640, 480}, {19, 462, 16, 16}, {19, 462, 16, 16}},
                          Case{{1280, 960}, {19, 462, 16, 16}, {38, 924, 32, 32}},
                          Case{{800, 600}, {19, 462, 16, 16}, {23, 577, 20, 20}},
                          Case{{1920, 1080}, {5, 470, 125, 60}, {15, 1057, 375, 135}},
                          // Towards zero, also on the left of the canvas.
                          Case{{800, 600}, {-19, -3, 1, 1}, {-23, -3, 1, 1}},
                          // A window without extent is no reason to divide by nothing.
                          Case{{0, 0}, {640, 480, 640, 480}, {1, 1, 1, 1}}}) {
        OneImage one(c.design[0], c.design[1], c.design[2], c.design[3]);
        one.hud.resize(c.window[0], c.window[1]);
        const HudItem::Box& box = one.item->pixels();
        EXPECT_EQ(box.x, c.pixels[0]);
        EXPECT_EQ(box.y, c.pixels[1]);
        EXPECT_EQ(box.width, c.pixels[2]);
        EXPECT_EQ(box.height, c.pixels[3]);
    }
}

TEST(Hud, DrawsVisibleItemsInTheirOrderInOverlayMode) {
    test::RecordingRenderer renderer;
    OneImage one(0, 0, 1, 1);
    auto add = [&](const char* text, bool visible, bool shadow) {
        auto item = std::make_unique<TextHudItem>(text);
        item->setText(text);
        item->visible = visible;
        item->shadow = shadow;
        one.hud.addItem(std::move(item));
    };
    add("plain", true, false);
    add("hidden", false, false);
    add("shadowed", true, true);
    one.hud.resize(640, 480);
    one.hud.draw(renderer, 0);
    ASSERT_EQ(renderer.calls.size(), 3U);
    EXPECT_EQ(renderer.calls[0].text, "a.png");
    EXPECT_EQ(renderer.calls[1].name + renderer.calls[1].text, "drawTextplain");
    EXPECT_EQ(renderer.calls[2].name + renderer.calls[2].text, "drawShadowTextshadowed");
    for (const test::DrawCall& call : renderer.calls)
        EXPECT_TRUE(call.overlay);
    EXPECT_FALSE(renderer.state.overlay);
}

TEST(TextHudItem, LongLinesMoveLeftToStayInTheWindow) {
    test::RecordingRenderer renderer;
    // Letters of a font of size 20 are ten pixels wide.
    struct Case {
        std::size_t letters;
        int x;
        float drawnAt;
    };
    // Four pixels stay free on the right.
    for (const Case& c : {Case{10, 536, 536}, Case{11, 536, 526}, Case{64, 500, 0},
                          Case{100, 300, 0}, Case{100, -180, 0}, Case{10, -5, -5}}) {
        TextHudItem item("text");
        item.setFont("vera", 20);
        item.setText(std::string(c.letters, 'x'));
        item.setPixelPosition(c.x, 100);
        item.draw(renderer, 0);
        EXPECT_EQ(renderer.calls.back().numbers[0], c.drawnAt) << c.letters << " from " << c.x;
    }
}

TEST(TextHudItem, LettersGrowWithTheWindowByWholeSteps) {
    test::RecordingRenderer renderer;
    Hud hud;
    auto text = std::make_unique<TextHudItem>("text");
    TextHudItem& item = *text;
    item.setFont("vera", 20);
    item.setText("xx");
    hud.addItem(std::move(text));
    struct Case {
        int window[2];
        int scale;
        float font;
    };
    for (const Case& c :
         {Case{{320, 200}, 1, 20}, Case{{640, 480}, 1, 20}, Case{{1024, 768}, 1, 20},
          Case{{1151, 864}, 1, 20}, Case{{1152, 863}, 1, 20}, Case{{1152, 864}, 2, 40},
          Case{{1920, 1080}, 2, 40}, Case{{2560, 1440}, 3, 40}, Case{{640, 2000}, 1, 20},
          Case{{2000000000, 1}, 1, 20}}) {
        hud.resize(c.window[0], c.window[1]);
        EXPECT_EQ(item.widthOf(*renderer.getFontRenderer(), "xx"), 20.0F * c.scale) << c.window[0];
        EXPECT_EQ(item.lineHeight(), 20 * c.scale) << c.window[0];
        hud.draw(renderer, 0);
        EXPECT_EQ(renderer.calls.back().numbers[3], c.font) << c.window[0];
        EXPECT_EQ(renderer.getFontRenderer()->getScale(), 1) << "left as it was";
    }
}

TEST(ImageHudItem, GlowLaysFainterAdditiveCopiesOverThePicture) {
    test::RecordingRenderer renderer;
    OneImage one(0, 0, 1, 1);
    one.item->glow = true;
    one.item->clamp = true;
    one.item->glowPasses = 3;
    one.item->glowAlphaStep = 60;
    one.item->draw(renderer, 0);
    ASSERT_EQ(renderer.calls.size(), 4U);
    EXPECT_FALSE(renderer.calls[0].additive);
    EXPECT_EQ(renderer.calls[0].colour.a, 200);
    const float alphas[] = {200, 140, 80};
    for (std::size_t pass = 0; pass < 3; ++pass) {
        const test::DrawCall& call = renderer.calls[pass + 1];
        EXPECT_EQ(call.text, "a_glow.png");
        EXPECT_TRUE(call.additive);
        EXPECT_TRUE(call.clamp);
        EXPECT_EQ(call.colour.a, alphas[pass]);
    }
}

}  // namespace
}  // namespace bc
