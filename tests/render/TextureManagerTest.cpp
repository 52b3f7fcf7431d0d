// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/Image.h"
#include "render/TextureManager.h"
#include "support/TestFolders.h"
#include "support/TestImages.h"

#include <set>
#include <sstream>
#include <string>

namespace bc {
namespace {

class Store final : public TextureStore {
  public:
    void uploadTexture(int id, const Image& image, bool clamp) override {
        EXPECT_TRUE(ids.insert(id).second);
        EXPECT_TRUE(everUsed.insert(id).second) << "an id was used twice";
        clamped = clamp;
        lastWidth = image.width;
    }
    void deleteTexture(int id) override { EXPECT_EQ(ids.erase(id), 1U); }
    std::set<int> ids;
    std::set<int> everUsed;
    bool clamped = false;
    int lastWidth = 0;
};

class TextureManagerTest : public TestFolders {
  protected:
    void image(const std::string& name, int width = 4) {
        put(data() + "/" + name, test::png(width, 2, {1, 2, 3, 4}));
    }
    void fallback() { image("data/images/fallback.png"); }

    Store store;
    TextureManager textures{store};
};

TEST_F(TextureManagerTest, LoadsOnFirstBindAndKeeps) {
    image("a.png", 8);
    EXPECT_EQ(textures.find("a.png"), nullptr);
    EXPECT_EQ(textures.getId("a.png"), -1);
    EXPECT_EQ(textures.getWidth("a.png"), -1);
    EXPECT_EQ(textures.getHeight("a.png"), -1);
    textures.unload("a.png");

    const int id = textures.bind("a.png", true);
    EXPECT_TRUE(store.clamped);
    EXPECT_EQ(store.lastWidth, 8);
    std::filesystem::remove(data() + "/a.png");
    EXPECT_EQ(textures.bind("a.png", false), id);
    EXPECT_EQ(textures.boundId(), id);
    EXPECT_EQ(textures.getId("a.png"), id);
    EXPECT_EQ(textures.getWidth("a.png"), 8);
    EXPECT_EQ(textures.getHeight("a.png"), 2);
    EXPECT_EQ(store.ids.size(), 1U);
}

TEST_F(TextureManagerTest, FallsBackAndSaysSoAtEachAttempt) {
    fallback();
    put(data() + "/grey.png", test::pngFile(1, 1, 8, 0, std::string(2, '\0')));
    for (const std::string name : {"missing.png", "grey.png", ""}) {
        const std::string line = "FAILED to load texture: " + name + "\n";
        int id = 0;
        EXPECT_EQ(logOf([&] { id = textures.bind(name, false); }), line);
        EXPECT_EQ(logOf([&] { EXPECT_EQ(textures.bind(name, false), id); }), line);
        EXPECT_EQ(id, textures.getId("data/images/fallback.png"));
        EXPECT_EQ(textures.boundId(), id);
        EXPECT_EQ(textures.find(name), nullptr);
    }
    // Once the image is there the next bind finds it.
    image("missing.png");
    EXPECT_NE(textures.bind("missing.png", false), textures.getId("data/images/fallback.png"));
}

TEST_F(TextureManagerTest, BindsNothingWithoutAFallback) {
    image("a.png");
    const int id = textures.bind("a.png", false);
    logOf([&] { EXPECT_EQ(textures.bind("missing.png", false), -1); });
    EXPECT_EQ(textures.boundId(), id);
}

TEST_F(TextureManagerTest, OrdersByNameInBytes) {
    for (const char* name : {"b.png", "a.png", "Z.png"}) {
        image(name);
        textures.bind(name, false);
    }
    // Slashes that lean the other way make another name.
    EXPECT_EQ(textures.indexOf(textures.getId("Z.png")), 0);
    EXPECT_EQ(textures.indexOf(textures.getId("a.png")), 1);
    EXPECT_EQ(textures.indexOf(textures.getId("b.png")), 2);
    EXPECT_EQ(textures.indexOf(12345), -1);
    std::ostringstream out;
    textures.dump(out);
    EXPECT_EQ(out.str(),
              "Z.png : w,h: 4,2 : bpp: 32 : glID: 3\n"
              "a.png : w,h: 4,2 : bpp: 32 : glID: 2\n"
              "b.png : w,h: 4,2 : bpp: 32 : glID: 1\n");
}

TEST_F(TextureManagerTest, AnIdThatOutlivedItsTextureShowsTheFallbackAndNoOtherImage) {
    fallback();
    image("a.png");
    image("b.png");
    const int stale = textures.bind("a.png", false);
    textures.unloadAll();
    EXPECT_TRUE(store.ids.empty());
    EXPECT_EQ(textures.boundId(), 0);
    const int fresh = textures.bind("b.png", false);
    EXPECT_NE(fresh, stale);
    for (const int id : {stale, 0, -1, 1 << 30}) {
        textures.bindId(fresh);
        EXPECT_EQ(textures.bindId(id), id);
        EXPECT_EQ(textures.boundId(), textures.getId("data/images/fallback.png")) << id;
    }
}

TEST_F(TextureManagerTest, LoadingAgainReplaces) {
    image("a.png", 4);
    textures.load("a.png", false);
    image("a.png", 16);
    EXPECT_EQ(textures.load("a.png", false)->width, 16);
    EXPECT_EQ(store.ids.size(), 1U);
}

}  // namespace
}  // namespace bc
