// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The skies that the game ships with.
#include "ports/IRenderer.h"
#include "resources/FileSystem.h"
#include "sky/BaseSky.h"
#include "sky/SkyServices.h"
#include "support/Places.h"
#include "support/RecordingRenderer.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <cmath>
#include <filesystem>
#include <set>
#include <string>

namespace bc {
namespace {

const std::string assets = test::sourcePath("assets");

std::set<std::string> shippedSkies() {
    std::set<std::string> names;
    for (const auto& file : std::filesystem::directory_iterator(assets + "/data/sky"))
        names.insert("data/sky/" + file.path().filename().string());
    return names;
}

bool pictureExists(const std::string& texture) {
    const std::string prefix = "data/";
    if (!texture.starts_with(prefix))
        return false;
    const std::filesystem::path path(assets + "/images/" + texture.substr(prefix.size()));
    return std::filesystem::exists(std::filesystem::path(path).replace_extension(".svg"));
}

std::set<std::string> particleDefinitions() {
    TiXmlDocument document((assets + "/data/particles/particles.xml").c_str());
    EXPECT_TRUE(document.LoadFile());
    std::set<std::string> ids;
    for (const TiXmlElement* e = document.RootElement()->FirstChildElement(); e;
         e = e->NextSiblingElement())
        ids.insert(e->Attribute("id"));
    return ids;
}

class SkyFilesTest : public testing::Test {
  protected:
    SkyFilesTest() : user_(files::userFolder()), data_(files::dataFolder()) {
        files::setFolders(assets, assets);
    }
    ~SkyFilesTest() override { files::setFolders(user_, data_); }

  private:
    std::string user_;
    std::string data_;
};

/// Whether a quad reaches over every edge of the window at that camera distance and aspect.
bool covers(const SkyQuad& quad, float camoffset, float aspect) {
    const Vertex& topLeft = quad.vertices()[0];
    const Vertex& bottomRight = quad.vertices()[2];
    // The view is 90 degrees high, so half its height is the distance from the eye.
    const float up = 2 * camoffset - topLeft.z;
    return topLeft.x <= -up * aspect && bottomRight.x >= up * aspect && topLeft.y >= up &&
           bottomRight.y <= -up;
}

TEST_F(SkyFilesTest, EverySkyIsWholeAndCoversTheWindow) {
    const std::set<std::string> definitions = particleDefinitions();
    const std::set<std::string> skies = shippedSkies();
    ASSERT_GE(skies.size(), 5U);
    EXPECT_TRUE(skies.contains("data/sky/default.xml"));
    int flares = 0;
    for (const std::string& name : skies) {
        SCOPED_TRACE(name);
        BaseSky sky;
        ASSERT_TRUE(sky.load(name));
        ASSERT_FALSE(sky.quads().empty());
        const SkyQuad& ground = sky.quads().front();
        EXPECT_FALSE(ground.textured);
        for (const Vertex& corner : ground.vertices())
            EXPECT_EQ(corner.a, 255);
        for (const float camoffset : {256.0F, 400.0F}) {
            EXPECT_TRUE(covers(ground, camoffset, 21.0F / 9)) << camoffset;
            EXPECT_TRUE(covers(ground, camoffset, 0.5F)) << camoffset;
        }
        bool additive = false;
        for (const SkyQuad& quad : sky.quads()) {
            EXPECT_TRUE(!quad.textured || pictureExists(quad.textureName)) << quad.textureName;
            // The first additive quad leaves its blending to those behind it.
            additive = additive || quad.blendStyle == SkyQuad::additiveStyle;
            EXPECT_EQ(additive, quad.blendStyle == SkyQuad::additiveStyle) << quad.textureName;
            for (const Vertex& c : quad.vertices()) {
                EXPECT_TRUE(c.r >= quad.minColour.r && c.r <= quad.maxColour.r) << c.r;
                EXPECT_TRUE(c.g >= quad.minColour.g && c.g <= quad.maxColour.g) << c.g;
                EXPECT_TRUE(c.b >= quad.minColour.b && c.b <= quad.maxColour.b) << c.b;
                EXPECT_TRUE(c.a >= quad.minColour.a && c.a <= quad.maxColour.a) << c.a;
            }
        }
        for (const auto& [id, position] : sky.placements())
            EXPECT_TRUE(definitions.contains(id)) << id;
        flares += sky.hasLensFlare() ? 1 : 0;
    }
    EXPECT_GE(flares, 1);
}

}  // namespace
}  // namespace bc
