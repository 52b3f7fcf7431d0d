// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/Quad.h"
#include "core/Vertex.h"
#include "ports/Drawable.h"
#include "render/ImageFile.h"
#include "render/Renderer.h"
#include "support/RendererFixture.h"

#include <string>
#include <utility>
#include <vector>

namespace bc {
namespace {

using test::isColour;
using test::Pixel;

class RendererDisplayTest : public test::RendererFixture {};

TEST_F(RendererDisplayTest, ImagesStandUprightWithTheirTopLeftCornerWhereItWasAsked) {
    makeQuarters("q.png");
    const auto expectUpright = [this](int left, int top, int size) {
        const int near = size / 4;
        const int far = size - size / 4;
        EXPECT_TRUE(isColour(at(left + near, top - near), 255, 0, 0));
        EXPECT_TRUE(isColour(at(left + far, top - near), 0, 255, 0));
        EXPECT_TRUE(isColour(at(left + near, top - far), 0, 0, 255));
        EXPECT_TRUE(isColour(at(left + far, top - far), 255, 255, 255));
        EXPECT_TRUE(isColour(at(left - 2, top - near), 0, 0, 0));
        EXPECT_TRUE(isColour(at(left + near, top + 1), 0, 0, 0));
    };
    begin2D();
    renderer->drawImage(100, 300, 0, 64, 64, "q.png", false, true);
    renderer->drawSprite("q.png", 332, 268, 0, 64);
    renderer->bindTexture("q.png", true);
    renderer->drawCentredQuad(432, 268, 0, 32, 32, true);
    QuadVertex corners[4] = {{500, 300, 0, 0, 1, 255, 255, 255, 255},
                             {564, 300, 0, 1, 1, 255, 255, 255, 255},
                             {564, 236, 0, 1, 0, 255, 255, 255, 255},
                             {500, 236, 0, 0, 0, 255, 255, 255, 255}};
    renderer->drawQuads(corners);
    finish();
    for (const int left : {100, 300, 400, 500})
        expectUpright(left, 300, 64);
}

TEST_F(RendererDisplayTest, BlendsAsAskedInTheOrderOfTheCalls) {
    makeImage("half.png", 4, {255, 255, 255, 128});
    begin2D();
    renderer->setTexturing(false);
    renderer->setBlending(false);
    renderer->setColour(100, 50, 0);
    renderer->drawQuad(0, 480, 0, 640, 480);
    renderer->setColour(0, 0, 200, 128);
    renderer->setBlending(true);
    renderer->setAlphaBlend();
    renderer->drawQuad(0, 100, 0, 100, 100);
    renderer->setAdditiveBlend();
    renderer->drawQuad(200, 100, 0, 100, 100);
    renderer->setBlending(false);
    renderer->drawQuad(400, 100, 0, 100, 100);
    renderer->setColour(255, 255, 255);
    renderer->drawImage(0, 300, 0, 100, 100, "half.png");
    renderer->setColour(255, 0, 0);
    renderer->drawImage(200, 300, 0, 100, 100, "half.png");
    // What is drawn last lies on top whatever it is made of.
    renderer->setTexturing(false);
    renderer->setColour(0, 255, 0);
    renderer->drawQuad(20, 280, 0, 20, 20);
    finish();
    EXPECT_TRUE(isColour(at(50, 50), 50, 25, 100));
    EXPECT_TRUE(isColour(at(250, 50), 100, 50, 100));
    EXPECT_TRUE(isColour(at(450, 50), 0, 0, 200));
    EXPECT_TRUE(isColour(at(80, 250), 178, 153, 128));
    EXPECT_TRUE(isColour(at(250, 250), 178, 25, 0));
    EXPECT_TRUE(isColour(at(30, 270), 0, 255, 0));
}

// Small images share textures; what is drawn must not show it, neither smaller nor larger than
// the image, nor after some made room for others.
TEST_F(RendererDisplayTest, SmallImagesDoNotRunIntoEachOther) {
    constexpr Pixel colours[] = {
        {255, 0, 0, 255}, {0, 255, 0, 255}, {0, 0, 255, 255}, {255, 255, 255, 255}};
    std::vector<std::pair<std::string, Pixel>> images;
    const auto add = [&](int i, const Pixel& colour) {
        const std::string name = std::to_string(i) + ".png";
        makeImage(name, 16 << i % 4, colour);
        images.emplace_back(name, colour);
    };
    for (int i = 0; i < 24; ++i)
        add(i, colours[i % 3]);
    const auto check = [&] {
        begin2D();
        renderer->setColour(255, 255, 255);
        for (std::size_t i = 0; i < images.size(); ++i) {
            const auto x = static_cast<float>(i * 24);
            renderer->drawImage(x, 100, 0, 4, 4, images[i].first, false, i % 2 == 0);
            renderer->drawImage(x, 200, 0, 20, 80, images[i].first, false, i % 2 == 0);
        }
        finish();
        for (std::size_t i = 0; i < images.size(); ++i) {
            const int x = static_cast<int>(i * 24);
            const Pixel& c = images[i].second;
            for (const auto& [px, py] : {std::pair(x, 99), {x + 3, 96}, {x, 199}, {x + 19, 120}})
                EXPECT_TRUE(isColour(at(px, py), c[0], c[1], c[2], 2)) << i << " at " << px;
        }
    };
    check();
    for (std::size_t i = 0; i < images.size(); i += 2)
        renderer->unloadTexture(images[i].first);
    for (int i = 0; i < 24; i += 2) {
        makeImage(std::to_string(i) + ".png", 16 << i % 4, colours[3]);
        images[static_cast<std::size_t>(i)].second = colours[3];
    }
    check();
}

TEST_F(RendererDisplayTest, TilesKeepToTheCoordinates) {
    makeQuarters("q.png", 16);
    begin2D();
    renderer->setColour(255, 255, 255);
    renderer->bindTexture("q.png");
    logOf([this] {
        renderer->drawTiledQuad(32, 96, 0, 40, 48);
        renderer->drawTiledQuad(75, 96, 0, 40, 48);
    });
    finish();
    // Every 16 pixels from the origin the image begins again, in both quads.
    for (const int x : {34, 50, 66, 82, 98})
        for (const int y : {93, 77, 61}) {
            EXPECT_TRUE(isColour(at(x, y), 255, 0, 0, 40)) << x << ',' << y;
            EXPECT_TRUE(isColour(at(x, y - 8), 0, 0, 255, 40)) << x << ',' << y;
        }
}

TEST_F(RendererDisplayTest, QuadsAndPolygonsShadeBetweenTheirCorners) {
    begin2D();
    renderer->setTexturing(false);
    Quad quad;
    quad.addVertex(Vector(0, 100), RGBAColour(0, 0, 0), {});
    quad.addVertex(Vector(100, 100), RGBAColour(200, 0, 0), {});
    quad.addVertex(Vector(100, 0), RGBAColour(200, 0, 0), {});
    quad.addVertex(Vector(0, 0), RGBAColour(0, 0, 0), {});
    renderer->drawQuad(quad);
    // An L: its fan starts at the inner corner's opposite, so the notch stays empty.
    const Vector points[] = {{200, 0}, {300, 0}, {300, 50}, {250, 50}, {250, 100}, {200, 100}};
    renderer->setColour(0, 200, 0);
    renderer->drawPolygon(points, 6);
    const Vector triangle[] = {{400, 0}, {500, 0}, {400, 100}};
    const RGBAColour colours[] = {{0, 0, 200}, {0, 0, 200}, {0, 0, 200}};
    renderer->drawPolygon(triangle, colours, 3);
    renderer->drawPolygon(points, 2);
    renderer->drawPolygon(nullptr, 9);
    finish();
    EXPECT_TRUE(isColour(at(50, 50), 100, 0, 0));
    EXPECT_TRUE(isColour(at(75, 50), 150, 0, 0));
    EXPECT_TRUE(isColour(at(225, 90), 0, 200, 0));
    EXPECT_TRUE(isColour(at(290, 25), 0, 200, 0));
    EXPECT_TRUE(isColour(at(290, 90), 0, 0, 0));
    EXPECT_TRUE(isColour(at(420, 20), 0, 0, 200));
    EXPECT_TRUE(isColour(at(480, 80), 0, 0, 0));
}

TEST_F(RendererDisplayTest, LinesRunWhereTheyAreTold) {
    begin2D();
    renderer->setTexturing(false);
    renderer->setBlending(false);
    renderer->setColour(255, 255, 255);
    renderer->drawLine(100, 50.5F, 200, 50.5F, 8.0F);
    renderer->drawLine(100, 100.5F, 200, 100.5F, 255, 0, 0, 255);
    const auto vertex = [](float x, float y) { return Vertex(x, y, 0, 0, 255, 0, 255); };
    renderer->drawColouredLines({vertex(300, 50.5F), vertex(400, 50.5F), vertex(400.5F, 150)});
    renderer->drawLines({{vertex(300, 200.5F), vertex(400, 200.5F)},
                         {vertex(300, 220.5F), vertex(350, 220.5F), vertex(400, 220.5F)}});
    finish();
    EXPECT_TRUE(isColour(at(150, 53), 255, 255, 255));
    EXPECT_TRUE(isColour(at(150, 58), 0, 0, 0));
    // The width of one line is not that of the next.
    EXPECT_TRUE(isColour(at(150, 100), 255, 0, 0));
    EXPECT_TRUE(isColour(at(150, 102), 0, 0, 0));
    for (const auto& [x, y] : {std::pair(350, 50), {400, 100}, {350, 200}, {380, 220}})
        EXPECT_TRUE(isColour(at(x, y), 0, 255, 0)) << x << ',' << y;
    EXPECT_TRUE(isColour(at(350, 210), 0, 0, 0));
}

TEST_F(RendererDisplayTest, BeamsCoverTheBandAndFlipTheirTexture) {
    // Red on the side of low s, green on the other.
    put(data() + "/sides.png", test::png(16, 16, 24, [](int x, int) {
            return x < 8 ? Pixel{255, 0, 0, 255} : Pixel{0, 255, 0, 255};
        }));
    begin2D();
    renderer->setColour(255, 255, 255);
    renderer->bindTexture("sides.png", true);
    renderer->drawBeam(Vector(100, 100), Vector(300, 100), 0, 20, true);
    renderer->drawBeam(Vector(100, 200), Vector(300, 200), 0, 20, true, true);
    renderer->drawSegmentedBeam(Vector(100, 300), Vector(350, 300), 0, 20, 64, true);
    finish();
    EXPECT_TRUE(isColour(at(200, 90), 255, 0, 0));
    EXPECT_TRUE(isColour(at(200, 110), 0, 255, 0));
    EXPECT_TRUE(isColour(at(200, 122), 0, 0, 0));
    EXPECT_TRUE(isColour(at(302, 100), 0, 0, 0));
    EXPECT_TRUE(isColour(at(200, 190), 0, 255, 0));
    EXPECT_TRUE(isColour(at(200, 210), 255, 0, 0));
    for (const int x : {101, 163, 165, 300, 348})
        EXPECT_TRUE(isColour(at(x, 290), 255, 0, 0)) << x;
    EXPECT_TRUE(isColour(at(353, 290), 0, 0, 0));
}

TEST_F(RendererDisplayTest, WorldIsScaledAroundTheCameraAndSortedByDepth) {
    beginWorld(1000, -500);
    renderer->setTexturing(false);
    renderer->setColour(255, 0, 0);
    renderer->drawQuad(1000, -500, 0, 100, 100);
    // Farther away, so hidden where the first one stands, though drawn later.
    renderer->setColour(0, 0, 255);
    renderer->drawQuad(1050, -450, -1, 100, 100);
    renderer->setDepthTest(false);
    renderer->setColour(0, 255, 0);
    renderer->drawQuad(1000, -590, -1, 20, 20);
    look();
    renderer->endFrame();
    EXPECT_TRUE(isColour(world(1010, -510), 255, 0, 0));
    EXPECT_TRUE(isColour(world(1090, -510), 255, 0, 0));
    EXPECT_TRUE(isColour(world(1140, -460), 0, 0, 255));
    EXPECT_TRUE(isColour(world(995, -505), 0, 0, 0));
    EXPECT_TRUE(isColour(world(1010, -599), 0, 255, 0));
}

TEST_F(RendererDisplayTest, WhatIsUnprojectedIsWhatIsSeenThere) {
    beginWorld(300, 200);
    const Vector from = renderer->unproject(500, 100, 0);
    const Vector to = renderer->unproject(500, 100, 1);
    const float t = from.z / (from.z - to.z);
    const Vector place = from + (to - from) * t;
    renderer->setTexturing(false);
    renderer->setColour(255, 255, 0);
    renderer->drawCentredQuad(place.x, place.y, 0, 2, 2, true);
    look();
    renderer->endFrame();
    EXPECT_TRUE(isColour(at(500, height - 100), 255, 255, 0));
    EXPECT_TRUE(isColour(at(505, height - 100), 0, 0, 0));
}

TEST_F(RendererDisplayTest, ScissorCutsAndDoesNotReachTheNextFrame) {
    begin2D();
    renderer->setTexturing(false);
    renderer->setScissor(ScissorRect{10.9F, 10.9F, 20.9F, 20.9F});
    renderer->setScissorTest(true);
    renderer->setColour(255, 255, 255);
    renderer->drawQuad(0, 480, 0, 640, 480);
    finish();
    EXPECT_TRUE(isColour(at(10, 10), 255, 255, 255));
    EXPECT_TRUE(isColour(at(29, 29), 255, 255, 255));
    EXPECT_TRUE(isColour(at(31, 31), 0, 0, 0));
    EXPECT_TRUE(isColour(at(9, 9), 0, 0, 0));
    renderer->setScissor(400, 400, 10, 10);
    begin2D();
    finish();
    EXPECT_TRUE(isColour(at(20, 20), 0, 0, 0)) << "the frame was not cleared as a whole";
}

TEST_F(RendererDisplayTest, ChangingTheModeKeepsDrawingAndForgetsTextures) {
    makeQuarters("q.png");
    begin2D();
    renderer->bindTexture("q.png");
    finish();
    const int stale = renderer->getTextureId("q.png");
    ASSERT_GT(stale, 0);
    logOf([this] { EXPECT_TRUE(renderer->setVideoMode(800, 600, false)); });
    EXPECT_EQ(renderer->getWidth(), 800);
    EXPECT_EQ(renderer->getHeight(), 600);
    EXPECT_EQ(renderer->getTextureId("q.png"), -1);
    begin2D();
    renderer->setColour(255, 255, 255);
    renderer->drawImage(700, 600, 0, 100, 100, "q.png", false, true);
    renderer->bindTextureId(stale);
    renderer->drawQuad(0, 100, 0, 100, 100);
    finish();
    EXPECT_TRUE(isColour(at(725, 575), 255, 0, 0));
    EXPECT_TRUE(isColour(at(775, 525), 255, 255, 255));
    EXPECT_TRUE(isColour(at(50, 50), 255, 0, 255)) << "an old id shows the fallback";
    EXPECT_FALSE(renderer->isFullscreen());
}

TEST_F(RendererDisplayTest, AModeThatCannotBeHadBecomesASmallWindow) {
    for (const auto& mode : {std::pair(100000, 100000), {0, 0}, {-5, 400}}) {
        const std::string log =
            logOf([&] { EXPECT_TRUE(renderer->setVideoMode(mode.first, mode.second, true)); });
        EXPECT_EQ(log,
                  "Error: Video Mode change failed\nFalling back to 640x480 : windowed\n"
                  "REND New Res: 640 , 480\n");
        EXPECT_EQ(renderer->getWidth(), 640);
        EXPECT_EQ(renderer->getHeight(), 480);
        EXPECT_FALSE(renderer->isFullscreen());
    }
    begin2D();
    renderer->setTexturing(false);
    renderer->setColour(255, 0, 0);
    renderer->drawQuad(600, 480, 0, 40, 40);
    finish();
    EXPECT_TRUE(isColour(at(630, 470), 255, 0, 0));
}

TEST_F(RendererDisplayTest, StartsUpAsAGameDoes) {
    EXPECT_FALSE(renderer->getVideoModes().empty());
    const auto& modes = renderer->getVideoModes();
    for (std::size_t i = 1; i < modes.size(); ++i)
        EXPECT_LE(modes[i - 1].width, modes[i].width);
    EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_DISABLE);
    EXPECT_EQ(SDL_WM_GrabInput(SDL_GRAB_QUERY), SDL_GRAB_OFF);
    EXPECT_EQ(SDL_EnableUNICODE(-1), 1);
    char* title = nullptr;
    SDL_WM_GetCaption(&title, nullptr);
    EXPECT_STREQ(title, "Brightclash");
}

TEST_F(RendererDisplayTest, PicturesShowTheWindowUpright) {
    makeQuarters("q.png");
    begin2D();
    renderer->drawImage(0, 480, 0, 640, 480, "q.png", false, true);
    logOf([this] { renderer->takeScreenshot(); });
    renderer->grabThumbnail();
    finish();
    EXPECT_TRUE(renderer->saveThumbnail("saves/a.png", 320, 240));
    for (const char* name : {"screenshots/screenshot0000.png", "saves/a.png"}) {
        const std::optional<Image> image = loadImage(name);
        ASSERT_TRUE(image) << name;
        // Rows are from the bottom: blue and white there.
        const std::size_t channels = static_cast<std::size_t>(image->bitsPerPixel / 8);
        const std::uint8_t* bottomLeft = image->pixels.data();
        const std::uint8_t* topRight = &image->pixels[image->pixels.size() - channels];
        EXPECT_LT(bottomLeft[0], 10) << name;
        EXPECT_GT(bottomLeft[2], 240) << name;
        EXPECT_LT(topRight[0], 10) << name;
        EXPECT_GT(topRight[1], 240) << name;
    }
}

}  // namespace
}  // namespace bc
