// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "resources/FileSystem.h"
#include "sky/BaseSky.h"
#include "sky/SkyManager.h"
#include "sky/SkyServices.h"
#include "support/RecordingRenderer.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>

namespace bc {
namespace {

/// Systems with ids from 1, and what became of them.
struct FakeParticles final : SkyParticles {
    std::vector<std::string> log;
    std::map<int, Vector> positions;
    int refuseFrom = 1000;

    int start(const std::string& name, const Vector& position) override {
        const int id = static_cast<int>(positions.size()) + 1;
        if (id >= refuseFrom)
            return none;
        positions[id] = position;
        log.push_back("start " + name);
        return id;
    }
    void stop(int handle, float seconds) override {
        log.push_back("stop " + std::to_string(handle) + " in " +
                      std::to_string(static_cast<int>(seconds)));
    }
    void draw(IRenderer& renderer, int handle) override {
        renderer.drawSprite("system " + std::to_string(handle), 0, 0, 0, 1);
    }
};

class SkyManagerTest : public testing::Test {
  protected:
    SkyManagerTest() : user_(files::userFolder()), data_(files::dataFolder()) {
        folder_ = testing::TempDir() + "skiesXXXXXX";
        mkdtemp(folder_.data());
        files::setFolders(folder_, folder_);
        files::replace("data/sky/a.xml",
                       "<sky><rect blendstyle='2' mincol='9,0,0,255' maxcol='9,0,0,255'/>"
                       "<rect textured='true' texture='t.png' clamptex='true'/><rect/>"
                       "<particle id='sparks' pos='1,2,3'/><particle id='clouds' pos='4,5,6'/>"
                       "<particle id='sparks' pos='7,8'/></sky>");
        files::replace("data/sky/b.xml", "<sky><particle id='rain'/></sky>");
        files::replace("data/sky/broken.xml", "<sky><rect></sky>");
        files::replace("data/sky/empty.xml", "");
        skies.setServices(&particles, nullptr);
        skies.init();
    }
    ~SkyManagerTest() override {
        files::setFolders(user_, data_);
        std::filesystem::remove_all(folder_);
    }
    std::string current() const { return skies.current() ? skies.current()->name() : "none"; }
    std::string takeLog() {
        std::string all;
        for (const std::string& line : particles.log)
            all += line + "; ";
        particles.log.clear();
        return all;
    }
    /// Whether a frame draws the fade over the sky.
    bool fading(float dt) {
        renderer.beginFrame();
        renderer.calls.clear();
        skies.draw(renderer, {}, dt);
        return !renderer.calls.empty() && renderer.calls.back().overlay;
    }

    FakeParticles particles;
    test::RecordingRenderer renderer;
    SkyManager skies;

  private:
    std::string user_;
    std::string data_;
    std::string folder_;
};

TEST_F(SkyManagerTest, FirstSkyBecomesCurrentWithoutAFade) {
    EXPECT_FALSE(fading(0));
    EXPECT_TRUE(skies.loadSkyByName("a"));
    EXPECT_EQ(current(), "data/sky/a.xml");
    EXPECT_EQ(takeLog(), "start clouds; start sparks; ");
    // The later of two placements of a system counts, lifted a little, in a z of its own.
    EXPECT_EQ(particles.positions.at(2).toString(), "7,8,0.2");
    EXPECT_FALSE(fading(0.1F));
    EXPECT_TRUE(skies.loadSky("data/sky/b.xml"));
    EXPECT_TRUE(skies.loadSkyByName("data/sky/b.xml"));
    EXPECT_EQ(skies.loadedCount(), 2U);
    EXPECT_EQ(current(), "data/sky/a.xml");
    EXPECT_EQ(takeLog(), "");
}

TEST_F(SkyManagerTest, SwitchingEndsAndStartsParticlesAndFadesOnce) {
    skies.loadSkyByName("a");
    skies.loadSkyByName("b");
    takeLog();
    skies.switchSkyByName("b");
    EXPECT_EQ(takeLog(), "stop 1 in 10; stop 2 in 10; start rain; ");
    EXPECT_TRUE(fading(0.6F));
    skies.switchSkyByName("b");
    EXPECT_EQ(takeLog(), "");
    EXPECT_TRUE(fading(0.4F));
    EXPECT_FALSE(fading(0.1F));

    skies.switchSkyByName("a");
    EXPECT_TRUE(fading(0.9F));
    skies.switchSkyByName("b");
    EXPECT_TRUE(fading(0.9F)) << "a second switch fades anew";
}

TEST_F(SkyManagerTest, FailuresAreToldAndChangeNothing) {
    skies.loadSkyByName("a");
    takeLog();
    testing::internal::CaptureStdout();
    EXPECT_FALSE(skies.loadSkyByName("nosuch"));
    EXPECT_FALSE(skies.loadSkyByName("broken"));
    EXPECT_FALSE(skies.loadSkyByName("empty"));
    EXPECT_FALSE(skies.loadSkyByName("../a"));
    EXPECT_FALSE(skies.replaceAllByName("nosuch"));
    skies.switchSkyByName("nosuch");
    const std::string out = testing::internal::GetCapturedStdout();
    for (const char* line :
         {"Could not load sky file:data/sky/nosuch.xml\n",
          "Could not load sky file:data/sky/broken.xml\n",
          "Could not load sky file:data/sky/empty.xml\n",
          "Tried to switch to a sky which hasn't been loaded: data/sky/nosuch.xml\n"})
        EXPECT_NE(out.find(line), std::string::npos) << out;
    EXPECT_EQ(current(), "data/sky/a.xml");
    EXPECT_EQ(skies.loadedCount(), 1U);
    EXPECT_EQ(takeLog(), "");
    EXPECT_FALSE(fading(0.1F));
}

TEST_F(SkyManagerTest, ReplacingAndUnloadingEndParticles) {
    skies.loadSkyByName("a");
    takeLog();
    EXPECT_TRUE(skies.replaceAllByName("b"));
    EXPECT_EQ(takeLog(), "stop 1 in 10; stop 2 in 10; start rain; ");
    EXPECT_EQ(skies.loadedCount(), 1U);
    skies.restartParticles();
    EXPECT_EQ(takeLog(), "start rain; ");
    EXPECT_TRUE(skies.loadSkyByName("hcsky2"));
    EXPECT_EQ(skies.loadedCount(), 1U) << "a reserved name loads nothing";
    EXPECT_TRUE(skies.replaceAllByName("hcsky1"));
    EXPECT_EQ(takeLog(), "stop 4 in 10; ");
    EXPECT_EQ(current(), "none");
    EXPECT_TRUE(skies.loadSkyByName("a")) << "may be loaded again";
    EXPECT_EQ(current(), "data/sky/a.xml");
}

TEST_F(SkyManagerTest, DrawsAroundTheCameraWithEachQuadsBlending) {
    particles.refuseFrom = 2;
    skies.loadSkyByName("a");
    renderer.beginFrame();
    renderer.state.additive = true;
    skies.draw(renderer, {100, 50, -300}, 0.01F);
    ASSERT_EQ(renderer.calls.size(), 4U);
    for (const test::DrawCall& call : renderer.calls) {
        EXPECT_EQ(call.offset.toString(), "100,50,-300");
        EXPECT_TRUE(call.blending);
        EXPECT_FALSE(call.depthWrite);
    }
    EXPECT_FALSE(renderer.calls[0].additive || renderer.calls[0].texturing);
    EXPECT_TRUE(renderer.calls[1].additive && renderer.calls[1].texturing &&
                renderer.calls[1].clamp);
    EXPECT_EQ(renderer.calls[1].text, "t.png");
    EXPECT_FALSE(renderer.calls[2].texturing);
    EXPECT_EQ(renderer.calls[3].text, "system 1");
    EXPECT_TRUE(renderer.state.depthWrite);
    EXPECT_EQ(renderer.matrixDepth(), 0);
}

}  // namespace
}  // namespace bc
