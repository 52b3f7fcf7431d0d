// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/Ticks.h"
#include "ports/Drawable.h"
#include "render/HeadlessRenderer.h"
#include "render/ImageFile.h"
#include "support/ConsoleFixture.h"
#include "support/TestImages.h"

#include <sstream>
#include <string>

namespace bc {
namespace {

class HeadlessRendererTest : public ConsoleFixture {
  protected:
    HeadlessRendererTest() {
        useVirtualTicks(0);
        logOf([this] { EXPECT_TRUE(renderer.init()); });
        vars().setVar("drawbodies", "1");
        vars().setVar("cachetextureids", "1");
        put(data() + "/data/images/fallback.png", test::png(4, 4, {255, 0, 255, 255}));
        put(data() + "/a.png", test::png(4, 4, {255, 0, 0, 255}));
    }
    ~HeadlessRendererTest() override { useRealTicks(); }

    void frameAt(float x, float y, float z) {
        renderer.beginFrame();
        renderer.setCamera(x, y, z);
    }
    std::string dumpOf(const std::function<void()>& draw) {
        auto stream = std::make_unique<std::ostringstream>();
        std::ostringstream* text = stream.get();
        renderer.dumpNextFrame(std::move(stream));
        renderer.beginFrame();
        draw();
        std::string dump = text->str();
        renderer.endFrame();
        EXPECT_FALSE(renderer.isDumpingFrame());
        return dump;
    }

    HeadlessRenderer renderer;
};

TEST_F(HeadlessRendererTest, StandsAtItsSizeWhateverModeIsAskedFor) {
    const std::string log = logOf([this] { EXPECT_TRUE(renderer.setVideoMode(640, 480, true)); });
    EXPECT_EQ(log, "REND New Res: 1024 , 768\n");
    EXPECT_EQ(renderer.getWidth(), 1024);
    EXPECT_EQ(renderer.getHeight(), 768);
    EXPECT_FALSE(renderer.isFullscreen());
    EXPECT_EQ(renderer.getVideoModes().size(), 1U);
}

// The view is 512 units high at the usual distance, so a pixel of 768 is 2/3 of a unit.
TEST_F(HeadlessRendererTest, UnprojectsWindowPlacesToTheWorld) {
    frameAt(100, -40, -256);
    struct Case {
        double sx, sy;
        float x, y;
    };
    const Case cases[] = {{512, 384, 100, -40},
                          {512, 0, 100, 216},
                          {512, 768, 100, -296},
                          {0, 384, 100 - 1024.0F / 3, -40},
                          {1024, 384, 100 + 1024.0F / 3, -40},
                          {512 + 96, 384 - 24, 164, -24}};
    for (const Case& c : cases) {
        // Where the line through both depths crosses the plane of play.
        const Vector from = renderer.unproject(c.sx, c.sy, 0);
        const Vector to = renderer.unproject(c.sx, c.sy, 1);
        EXPECT_NEAR(from.z, 256 - 0.1F / 0.015F, 0.01F);
        const float t = from.z / (from.z - to.z);
        EXPECT_NEAR(from.x + (to.x - from.x) * t, c.x, 0.02F) << c.sx << ',' << c.sy;
        EXPECT_NEAR(from.y + (to.y - from.y) * t, c.y, 0.02F) << c.sx << ',' << c.sy;
    }
    for (const auto& [sx, sy] : {std::pair(-1.0, 5.0), {1025.0, 5.0}, {5.0, -0.5}, {5.0, 769.0}}) {
        const Vector outside = renderer.unproject(sx, sy, 0);
        EXPECT_EQ(outside.toString(), "0,0,-512");
    }
}

TEST_F(HeadlessRendererTest, OverlayPlacesArePixelsFromTheBottomLeft) {
    frameAt(5000, 5000, -256);
    const Vector world = renderer.unproject(300, 200, 0);
    renderer.begin2D();
    const Vector place = renderer.screenToWorld(300, 200);
    EXPECT_NEAR(place.x, 300, 0.001F);
    EXPECT_NEAR(place.y, 568, 0.001F);
    EXPECT_EQ(place.z, 0);
    // Entering twice and leaving twice is the same as once.
    renderer.begin2D();
    renderer.end2D();
    EXPECT_TRUE(renderer.unproject(300, 200, 0).equals(world));
    renderer.end2D();
    EXPECT_TRUE(renderer.unproject(300, 200, 0).equals(world));
}

TEST_F(HeadlessRendererTest, MatricesNestAndSurviveUnevenUse) {
    frameAt(0, 0, -256);
    const Vector centre = renderer.unproject(512, 384, 0);
    renderer.pushMatrix();
    renderer.translate(10, 20, 0);
    EXPECT_NEAR(renderer.unproject(512, 384, 0).x, centre.x + 10, 0.001F);
    EXPECT_NEAR(renderer.unproject(512, 384, 0).y, centre.y + 20, 0.001F);
    renderer.popMatrix();
    EXPECT_TRUE(renderer.unproject(512, 384, 0).equals(centre));
    for (int i = 0; i < 100; ++i)
        renderer.pushMatrix();
    for (int i = 0; i < 100; ++i)
        renderer.popMatrix();
    EXPECT_TRUE(renderer.unproject(512, 384, 0).equals(centre));
    for (int i = 0; i < 100; ++i)
        renderer.popMatrix();
    EXPECT_TRUE(renderer.unproject(512, 384, 0).equals(centre));
}

TEST_F(HeadlessRendererTest, ViewFollowsTheCamera) {
    frameAt(1000, 0, -256);
    EXPECT_FALSE(renderer.getFrustum().isRectOutside(1330, 0, 1350, 10));
    EXPECT_TRUE(renderer.getFrustum().isRectOutside(1345, 0, 1350, 10));
    renderer.updateFrustumPlanes();
    EXPECT_FALSE(renderer.getFrustum().isRectOutside(1330, 0, 1350, 10));
    EXPECT_TRUE(renderer.getFrustum().isRectOutside(1345, 0, 1350, 10));
}

TEST_F(HeadlessRendererTest, ReadsTexturesAndLogsBrokenOnes) {
    renderer.bindTexture("a.png");
    EXPECT_GT(renderer.getTextureId("a.png"), 0);
    const std::string log = logOf([this] { renderer.bindTexture("broken.png"); });
    EXPECT_EQ(log, "FAILED to load texture: broken.png\n");
    EXPECT_EQ(renderer.getTextureId("broken.png"), -1);
    std::ostringstream out;
    renderer.dumpTextures(out);
    EXPECT_NE(out.str().find("a.png : w,h: 4,4 : bpp: 32 : glID: "), std::string::npos);
    EXPECT_NE(out.str().find("\nBlur Texture ID: "), std::string::npos);
    logOf([this] { renderer.setVideoMode(1024, 768, false); });
    EXPECT_EQ(renderer.getTextureId("a.png"), -1);
    renderer.bindTexture("a.png");
    renderer.unloadTexture("a.png");
    EXPECT_EQ(renderer.getTextureId("a.png"), -1);
}

TEST_F(HeadlessRendererTest, BodiesKeepTheTextureIdOnlyWhileThatIsOn) {
    Drawable body;
    body.localVertices = {Vector(-1, -1), Vector(1, -1), Vector(1, 1)};
    body.textured = true;
    body.texture = "a.png";
    vars().setVar("cachetextureids", "0");
    renderer.beginFrame();
    renderer.drawBody(body);
    EXPECT_EQ(body.textureHandle, -1);
    vars().setVar("cachetextureids", "1");
    renderer.drawBody(body);
    EXPECT_EQ(body.textureHandle, renderer.getTextureId("a.png"));
    // A body whose image is missing asks for it once.
    body.texture = "missing.png";
    body.textureHandle = -1;
    EXPECT_EQ(logOf([&] { renderer.drawBody(body); }), "FAILED to load texture: missing.png\n");
    EXPECT_EQ(logOf([&] { renderer.drawBody(body); }), "");
}

struct HookedBody final : Drawable {
    bool self = false;
    std::string calls;
    bool drawsItself() const override { return self; }
    void drawSelf(IRenderer&) override { calls += "self "; }
    void drawExtras(IRenderer&) override { calls += "extras "; }
};

TEST_F(HeadlessRendererTest, BodiesAreAskedForTheirOwnDrawing) {
    HookedBody body;
    renderer.beginFrame();
    renderer.drawBody(body);
    body.self = true;
    renderer.drawBody(body);
    body.visible = false;
    renderer.drawBody(body);
    body.self = false;
    renderer.drawBody(body);
    EXPECT_EQ(body.calls, "extras self self ");
    vars().setVar("drawbodies", "0");
    body.visible = body.self = true;
    renderer.drawBody(body);
    renderer.drawBodyPlain(body);
    EXPECT_EQ(body.calls, "extras self self extras ");
}

TEST_F(HeadlessRendererTest, BeamsAreBandsAroundTheirSegment) {
    float c[8];
    renderer.beamCorners(c, Vector(10, 10), Vector(10, 30), 2);
    const float wanted[8] = {12, 10, 8, 10, 8, 30, 12, 30};
    for (int i = 0; i < 8; ++i)
        EXPECT_FLOAT_EQ(c[i], wanted[i]) << i;
    renderer.beamCorners(c, Vector(3, 4), Vector(3, 4), 2);
    for (int i = 0; i < 8; i += 2)
        EXPECT_EQ(Vector(c[i], c[i + 1]).toString(), "3,4,0");
}

TEST_F(HeadlessRendererTest, DumpsOneFrameOperationByOperation) {
    Drawable body;
    body.localVertices = {Vector(-1, -1), Vector(1, -1), Vector(1, 1)};
    const auto draw = [&] {
        renderer.begin2D();
        renderer.setColour(RGBAColour(1, 2, 300, 4));
        renderer.drawImage(1, 2, 0, 3.5F, 4, "a.png", true, false);
        renderer.bindTextureId(renderer.getTextureId("a.png"));
        renderer.bindTextureId(99);
        renderer.noteInDump("text \"two\nlines\"");
        renderer.end2D();
        renderer.drawBody(body);
    };
    EXPECT_EQ(dumpOf(draw),
              "beginFrame\n"
              "begin2D\n"
              "setColour 1 2 255 4\n"
              "drawImage 1 2 0 3.5 4 a.png true false\n"
              "bindTextureId a.png\n"
              "bindTextureId none\n"
              "text \"two lines\"\n"
              "end2D\n"
              "drawBody default generic 0 0 0 0 untextured\n");
}

TEST_F(HeadlessRendererTest, MovieFramesAreDueEveryEighthOfASecond) {
    EXPECT_TRUE(renderer.movieFrameDue(0));
    EXPECT_FALSE(renderer.movieFrameDue(124));
    EXPECT_TRUE(renderer.movieFrameDue(125));
    EXPECT_FALSE(renderer.movieFrameDue(249));
}

TEST_F(HeadlessRendererTest, TiledQuadsNameTheirTextureInTheLog) {
    renderer.beginFrame();
    renderer.bindTexture("a.png");
    EXPECT_EQ(logOf([this] { renderer.drawTiledQuad(0, 0, 0, 8, 8); }), "a.png\n");
}

TEST_F(HeadlessRendererTest, ScreenshotsTakeTheFirstFreeNumber) {
    const auto shot = [this] {
        lines.clear();
        return logOf([this] { renderer.takeScreenshot(); });
    };
    for (int i = 0; i < 5; ++i)
        put(user() + "/screenshots/screenshot000" + std::to_string(i) + ".png", "x");
    EXPECT_EQ(shot(), "Writing screenshot to screenshots/screenshot0005.png\n");
    EXPECT_EQ(lines.at(0), "Writing screenshot to screenshots/screenshot0005.png");
    const auto image = loadImage("screenshots/screenshot0005.png");
    ASSERT_TRUE(image);
    EXPECT_EQ(image->width, 1024);
    EXPECT_EQ(image->height, 768);
    EXPECT_EQ(get(user() + "/screenshots/screenshot0000.png"), "x");
    shot();
    EXPECT_TRUE(std::filesystem::exists(user() + "/screenshots/screenshot0006.png"));
}

TEST_F(HeadlessRendererTest, AFullFolderTakesNoScreenshot) {
    for (int i = 0; i < 9999; ++i) {
        std::string n = std::to_string(i);
        n.insert(0, 4 - n.size(), '0');
        put(user() + "/screenshots/screenshot" + n + ".png", "");
    }
    const std::string full = "Screenshots dir is full, copy the pictures elsewhere and try again";
    for (int attempt = 0; attempt < 2; ++attempt) {
        lines.clear();
        EXPECT_EQ(logOf([this] { renderer.takeScreenshot(); }), full + "\n");
        EXPECT_EQ(lines.at(0), full);
    }
    EXPECT_FALSE(std::filesystem::exists(user() + "/screenshots/screenshot9999.png"));
}

TEST_F(HeadlessRendererTest, MovieFramesCountOnSilently) {
    vars().setVar("movierecord", "8");
    EXPECT_EQ(logOf([this] {
                  renderer.takeScreenshot();
                  renderer.takeScreenshot();
              }),
              "");
    EXPECT_TRUE(std::filesystem::exists(user() + "/screenshots/movie0000.png"));
    EXPECT_TRUE(std::filesystem::exists(user() + "/screenshots/movie0001.png"));
    EXPECT_TRUE(lines.empty());
}

TEST_F(HeadlessRendererTest, ThumbnailsAreSavedOnceAndDropTheOldOneFromTheCache) {
    EXPECT_FALSE(renderer.saveThumbnail("saves/a.png", 320, 240));
    put(user() + "/saves/a.png", test::png(4, 4, {9, 9, 9, 255}));
    renderer.bindTexture("saves/a.png");
    renderer.grabThumbnail();
    renderer.grabThumbnail();
    EXPECT_TRUE(renderer.saveThumbnail("saves/a.png", 320, 240));
    EXPECT_EQ(renderer.getTextureId("saves/a.png"), -1);
    const auto image = loadImage("saves/a.png");
    ASSERT_TRUE(image);
    EXPECT_EQ(image->width, 320);
    EXPECT_EQ(image->height, 240);
    EXPECT_FALSE(renderer.saveThumbnail("saves/b.png", 320, 240));
    renderer.grabThumbnail();
    logOf([this] { EXPECT_FALSE(renderer.saveThumbnail("../out.png", 320, 240)); });
    renderer.grabThumbnail();
    logOf([this] {
        const FullDisk full(300);
        EXPECT_FALSE(renderer.saveThumbnail("saves/a.png", 320, 240));
    });
    EXPECT_TRUE(loadImage("saves/a.png")) << "the old picture stays";
}

}  // namespace
}  // namespace bc
