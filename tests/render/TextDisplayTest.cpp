// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "ports/Drawable.h"
#include "render/HeadlessRenderer.h"
#include "render/ImageFontRenderer.h"
#include "support/AllocationCounter.h"
#include "support/DisplayFixture.h"
#include "support/TestFont.h"

#include <sstream>
#include <string>

namespace bc {
namespace {

using test::isColour;
using test::Pixel;
using test::TestGlyph;

class TextDisplayTest : public test::DisplayFixture {
  protected:
    TextDisplayTest() {
        // Glyphs of 8 x 10 at the top left of the page, two rows of them below the line. Their
        // left half is lit above the line, the whole of them below.
        const auto glyph = [](int) { return TestGlyph{8, 10, 8, 9}; };
        for (const char* stem : {"vera_12", "verabd_14", "verabd_18", "verabd_24"}) {
            const std::string page = std::string(stem) + ".png";
            const std::string folder = data() + "/data/fonts/";
            put(folder + stem + ".xml", test::fontFile(256, page, glyph));
            put(folder + page, test::png(256, 256, 32, [](int x, int y) {
                    const bool lit = y < 10 && x < (y < 8 ? 4 : 8);
                    return Pixel{255, 255, 255, static_cast<std::uint8_t>(lit ? 255 : 0)};
                }));
        }
        logOf([this] {
            renderer->setFontRenderer(std::make_unique<ImageFontRenderer>());
            renderer->getFontRenderer()->setRenderer(renderer.get());
            fontsReady = renderer->getFontRenderer()->init();
        });
    }
    FontRenderer& fonts() { return *renderer->getFontRenderer(); }

    bool fontsReady = false;
};

TEST_F(TextDisplayTest, GlyphsFallExactlyOnPixels) {
    ASSERT_TRUE(fontsReady);
    renderer->beginFrame();
    renderer->begin2D();
    renderer->setTexturing(true);
    renderer->setColour(0, 255, 0);
    fonts().drawText(100.7F, 50.3F, "ab");
    renderer->setColour(255, 0, 0, 128);
    fonts().drawText(200, 50, "a");
    look();
    renderer->end2D();
    renderer->endFrame();
    for (const int left : {100, 110}) {
        EXPECT_TRUE(isColour(at(left - 1, 52), 0, 0, 0, 0)) << left;
        EXPECT_TRUE(isColour(at(left, 52), 0, 255, 0, 1)) << left;
        EXPECT_TRUE(isColour(at(left + 3, 57), 0, 255, 0, 1)) << left;
        EXPECT_TRUE(isColour(at(left + 4, 57), 0, 0, 0, 1)) << left;
        EXPECT_TRUE(isColour(at(left + 3, 58), 0, 0, 0, 1)) << left;
        EXPECT_TRUE(isColour(at(left + 7, 49), 0, 255, 0, 1)) << left;
        EXPECT_TRUE(isColour(at(left + 7, 48), 0, 255, 0, 1)) << left;
        EXPECT_TRUE(isColour(at(left + 7, 47), 0, 0, 0, 1)) << left;
        EXPECT_TRUE(isColour(at(left + 7, 50), 0, 0, 0, 1)) << left;
    }
    EXPECT_TRUE(isColour(at(201, 52), 128, 0, 0, 2));
}

TEST_F(TextDisplayTest, FrameRateStandsAtTheLowerRight) {
    ASSERT_TRUE(fontsReady);
    const auto draw = [this] {
        renderer->beginFrame();
        renderer->drawFPS();
        look();
        renderer->endFrame();
    };
    draw();
    EXPECT_TRUE(isColour(at(width - 128 + 1, 40), 0, 0, 0));
    vars().setVar("showfps", "1");
    draw();
    EXPECT_TRUE(isColour(at(width - 128 + 1, 40), 255, 255, 255));
    EXPECT_TRUE(isColour(at(width - 128 + 7, 40), 0, 0, 0));
}

TEST_F(TextDisplayTest, BodiesCarryLabelsWhenAsked) {
    ASSERT_TRUE(fontsReady);
    vars().setVar("rbodystring", "1");
    Drawable body;
    body.renderpos = Vector(10, 0);
    body.localVertices = {Vector(-5, -5), Vector(5, -5), Vector(5, 5), Vector(-5, 5)};
    body.outlined = false;
    renderer->beginFrame();
    renderer->setCamera(0, 0, -256);
    renderer->drawBody(body);
    look();
    auto dump = std::make_unique<std::ostringstream>();
    const std::ostringstream& text = *dump;
    renderer->dumpNextFrame(std::move(dump));
    renderer->endFrame();
    EXPECT_TRUE(isColour(atWorld(11.5F, 27, Vector()), 255, 255, 255));
    renderer->beginFrame();
    body.mass = 0;
    renderer->drawBody(body);
    EXPECT_NE(text.str().find("\"generic : default : Unmovable\""), std::string::npos);
    renderer->endFrame();
}

TEST_F(TextDisplayTest, AFrameDumpIsTheSameWithAndWithoutAWindow) {
    ASSERT_TRUE(fontsReady);
    makeImage("a.png", 8, {255, 255, 255, 255});
    const auto dump = [](IRenderer& target) {
        auto stream = std::make_unique<std::ostringstream>();
        const std::ostringstream& text = *stream;
        target.dumpNextFrame(std::move(stream));
        Drawable body;
        body.textured = true;
        body.texture = "a.png";
        target.beginFrame();
        target.setCamera(1.5F, -2, -256);
        target.drawBody(body);
        target.begin2D();
        target.bindTextureId(target.getTextureId("a.png"));
        target.drawQuad(1, 2, 0, 3, 4);
        target.getFontRenderer()->drawShadowText(10, 20, "words");
        target.end2D();
        std::string lines = text.str();
        target.endFrame();
        return lines;
    };
    HeadlessRenderer headless;
    logOf([&] {
        headless.init();
        headless.setFontRenderer(std::make_unique<ImageFontRenderer>());
        headless.getFontRenderer()->setRenderer(&headless);
        headless.getFontRenderer()->init();
    });
    const std::string withWindow = dump(*renderer);
    EXPECT_EQ(withWindow, dump(headless));
    EXPECT_NE(withWindow.find("\ntext 10 20 0 vera 14 \"words\"\n"), std::string::npos);
}

TEST_F(TextDisplayTest, AWarmFrameAllocatesNothing) {
    ASSERT_TRUE(fontsReady);
    makeImage("data/particles/a long name of a texture.png", 8, {255, 255, 255, 255});
    makeImage("data/images/another long name of a texture.png", 8, {255, 255, 255, 255});
    const std::string first = "data/particles/a long name of a texture.png";
    const std::string second = "data/images/another long name of a texture.png";
    vars().setVar("showfps", "1");
    vars().setVar("bloomblurpixels", "3");
    Drawable body;
    body.localVertices = {Vector(-5, -5), Vector(5, -5), Vector(5, 5), Vector(-5, 5)};
    body.outlined = true;
    body.hasGlow = true;
    body.glowSteps = 3;
    body.glowTexture = second;
    makeImage("data/particles/brightpart.tga", 8, {255, 255, 255, 255});
    const std::vector<QuadVertex> quads(20000, QuadVertex{1, 1, 0, 0, 0, 9, 9, 9, 9});
    const std::string text(300, 'x');
    const auto frame = [&] {
        renderer->beginFrame();
        renderer->setCamera(10, 20, -256);
        renderer->beginBloomCapture();
        renderer->drawBody(body);
        renderer->endBloomCapture();
        for (int i = 0; i < 50; ++i) {
            renderer->drawBody(body);
            renderer->drawSprite(i % 2 == 0 ? first : second, 0, 0, 0, 10);
        }
        renderer->bindTexture(first);
        renderer->drawQuads(quads);
        renderer->drawSegmentedBeam(Vector(0, 0), Vector(300, 0), 0, 4, 16, true);
        renderer->drawBloom();
        renderer->begin2D();
        fonts().setFont("vera", 12);
        fonts().drawShadowText(10, 10, text);
        renderer->end2D();
        renderer->drawFPS();
        renderer->endFrame();
    };
    frame();
    frame();
    const test::AllocationCounter proof;
    body.localVertices.reserve(100);
    EXPECT_GT(proof.count(), 0) << "nothing is counted";
    const test::AllocationCounter counter;
    for (int i = 0; i < 3; ++i)
        frame();
    EXPECT_EQ(counter.count(), 0);
}

}  // namespace
}  // namespace bc
