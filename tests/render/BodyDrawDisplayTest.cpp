// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Bodies, their textures, outlines and glow, and the bloom over all.
#include "ports/Drawable.h"
#include "render/Renderer.h"
#include "support/RendererFixture.h"

#include <string>
#include <utility>
#include <vector>

namespace bc {
namespace {

using test::isColour;
using test::Pixel;

Drawable box(float x, float y, float half) {
    Drawable body;
    body.renderpos = Vector(x, y);
    body.localVertices = {Vector(-half, -half), Vector(half, -half), Vector(half, half),
                          Vector(-half, half)};
    body.colours.assign(4, RGBAColour(0, 0, 200));
    body.outlined = false;
    return body;
}

class BodyDrawDisplayTest : public test::RendererFixture {};

TEST_F(BodyDrawDisplayTest, BodiesStandTurnedAtTheirPlace) {
    makeQuarters("q.png");
    Drawable plain = box(100, 100, 20);
    // The upper right quarter of a long box turned clockwise by 90 degrees points down.
    Drawable turned = box(200, 100, 10);
    turned.localVertices = {Vector(0, 0), Vector(60, 0), Vector(60, 10), Vector(0, 10)};
    turned.angle = 3.14159265F / 2;
    Drawable textured = box(0, 0, 20);
    textured.textured = true;
    textured.texture = "q.png";
    textured.clampTexture = true;
    textured.colours.assign(4, RGBAColour(255, 255, 255));
    textured.texCoords = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
    Drawable hidden = box(-100, 0, 20);
    hidden.visible = false;
    beginWorld(100, 50);
    for (Drawable* body : {&plain, &turned, &textured, &hidden})
        renderer->drawBody(*body);
    look();
    renderer->endFrame();
    EXPECT_TRUE(isColour(world(100, 100), 0, 0, 200));
    EXPECT_TRUE(isColour(world(118, 118), 0, 0, 200));
    EXPECT_TRUE(isColour(world(123, 100), 0, 0, 0));
    EXPECT_TRUE(isColour(world(205, 50), 0, 0, 200));
    EXPECT_TRUE(isColour(world(195, 50), 0, 0, 0));
    EXPECT_TRUE(isColour(world(205, 110), 0, 0, 0));
    EXPECT_TRUE(isColour(world(-10, 10), 255, 0, 0));
    EXPECT_TRUE(isColour(world(10, -10), 255, 255, 255));
    EXPECT_TRUE(isColour(world(-100, 0), 0, 0, 0));
    EXPECT_EQ(textured.textureHandle, renderer->getTextureId("q.png"));
}

TEST_F(BodyDrawDisplayTest, OutlinesFollowTheCornersButDoNotClose) {
    makeImage("data/particles/brightpart.tga", 8, {255, 255, 255, 255});
    Drawable body = box(0, 0, 50);
    body.outlined = true;
    body.outlinecolour = RGBAColour(0, 255, 0);
    beginWorld(0, 0);
    renderer->drawBody(body);
    look();
    renderer->endFrame();
    EXPECT_TRUE(isColour(world(0, -50), 0, 255, 0));
    EXPECT_TRUE(isColour(world(51, 0), 0, 255, 0));
    EXPECT_TRUE(isColour(world(0, 51), 0, 255, 0));
    EXPECT_TRUE(isColour(world(-49, 0), 0, 0, 200));
    vars().setVar("drawoutlines", "0");
    beginWorld(0, 0);
    renderer->drawBody(body);
    look();
    renderer->endFrame();
    EXPECT_TRUE(isColour(world(0, -49), 0, 0, 200));
    EXPECT_TRUE(isColour(world(0, -52), 0, 0, 0));
}

struct MovingTexture final : Drawable {
    bool hasTextureTransform() const override { return true; }
    void textureTransform(TextureTransform& t) override {
        t.offsetX = 0.5F;
        t.scaleX = 0;
        t.scaleY = 0;
        t.offsetY = 0.25F;
    }
};

TEST_F(BodyDrawDisplayTest, TexturesMoveWithTheBodyThatAsksForItOnly) {
    makeQuarters("q.png");
    MovingTexture moving;
    static_cast<Drawable&>(moving) = box(-60, 0, 40);
    moving.textured = true;
    moving.texture = "q.png";
    moving.colours.clear();
    moving.texCoords = {{0.1F, 0.1F}, {0.2F, 0.9F}};
    Drawable still = box(60, 0, 40);
    still.textured = true;
    still.texture = "q.png";
    still.texCoords.assign(4, {0.25F, 0.75F});
    still.colours.assign(4, RGBAColour(255, 255, 255));
    // The point at (0.5, 0.25) lies between blue and white; a little scale tells the side.
    beginWorld(0, 0);
    renderer->drawBody(moving);
    renderer->drawBody(still);
    look();
    renderer->endFrame();
    EXPECT_TRUE(isColour(world(-60, 0), 128, 128, 255, 30));
    EXPECT_TRUE(isColour(world(60, 0), 255, 0, 0));
}

TEST_F(BodyDrawDisplayTest, GlowLiesAroundTheBodyButNotInTheBloomPass) {
    makeImage("glow.png", 8, {0, 255, 0, 100});
    Drawable body = box(0, 0, 40);
    body.hasGlow = true;
    body.glowTexture = "glow.png";
    body.glowSteps = 2;
    const auto draw = [&] {
        beginWorld(0, 0);
        renderer->drawBody(body);
        look();
        renderer->endFrame();
    };
    draw();
    // 100 of the first pass and half of that of the second.
    EXPECT_TRUE(isColour(world(0, 0), 0, 150, 200, 8));
    EXPECT_TRUE(isColour(world(55, 0), 0, 150, 0, 8));
    EXPECT_TRUE(isColour(world(65, 0), 0, 0, 0));
    renderer->beginBloomCapture();
    beginWorld(0, 0);
    renderer->drawBody(body);
    look();
    renderer->endBloomCapture();
    renderer->endFrame();
    EXPECT_TRUE(isColour(at(128, 128), 0, 0, 200));
}

TEST_F(BodyDrawDisplayTest, BloomSpreadsWhatWasCapturedByTheSettingInPixels) {
    for (const auto& [setting, blur] : {std::pair("0", 4), {"12", 12}}) {
        vars().setVar("bloomblurpixels", setting);
        renderer->beginFrame();
        renderer->setCamera(0, 0, -256);
        renderer->beginBloomCapture();
        EXPECT_TRUE(renderer->isCapturingBloom());
        renderer->setTexturing(false);
        renderer->setBlending(false);
        renderer->setColour(255, 255, 255);
        renderer->drawQuad(-128, 128, 0, 128, 256);
        renderer->endBloomCapture();
        EXPECT_FALSE(renderer->isCapturingBloom());
        renderer->drawBloom();
        look();
        renderer->endFrame();
        // Four copies of a tenth each in the middle, two of them beyond the edge at 320.
        EXPECT_TRUE(isColour(at(260, 240), 104, 104, 104, 8));
        EXPECT_TRUE(isColour(at(320, 240), 52, 52, 52, 12));
        EXPECT_TRUE(isColour(at(320 + blur + 5, 240), 0, 0, 0));
        EXPECT_TRUE(isColour(at(320 - blur - 5, 240), 104, 104, 104, 8));
        EXPECT_TRUE(isColour(at(260, 20), 0, 0, 0)) << "the capture itself was not cleared away";
    }
}

}  // namespace
}  // namespace bc
