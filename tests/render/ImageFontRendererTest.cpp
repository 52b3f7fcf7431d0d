// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/ImageFile.h"
#include "render/ImageFontRenderer.h"
#include "support/Places.h"
#include "support/RecordingRenderer.h"
#include "support/TestFolders.h"
#include "support/TestFont.h"
#include "support/TestImages.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace bc {
namespace {

using test::DrawCall;
using test::TestGlyph;

// Of every font: letters 8 x 10 of which 2 lie below the line, 'w' wider than it advances, no
// mark for a space.
TestGlyph glyph(int code) {
    if (code == ' ')
        return {0, 0, 0, 4};
    if (code == 'w')
        return {15, 10, 8, 6.5F};
    return {8, 10, 8, 9};
}

class ImageFontRendererTest : public TestFolders {
  protected:
    ImageFontRendererTest() {
        for (const char* stem : {"vera_12", "verabd_14", "verabd_18", "verabd_24"}) {
            const std::string page = std::string(stem) + ".png";
            font(std::string(stem) + ".xml", test::fontFile(256, page, glyph));
            put(data() + "/data/fonts/" + page, test::png(1, 1, {255, 255, 255, 255}));
        }
        fonts.setRenderer(&renderer);
    }
    void font(const std::string& name, const std::string& text) {
        put(data() + "/data/fonts/" + name, text);
    }
    bool init() {
        bool ok = false;
        log = logOf([&] { ok = fonts.init(); });
        return ok;
    }
    // The quads of a text, each by its four corners.
    std::vector<QuadVertex> draw(float x, float y, std::string_view text) {
        renderer.calls.clear();
        log = logOf([&] { fonts.drawText(x, y, 3, text); });
        std::vector<QuadVertex> corners;
        for (const DrawCall& call : renderer.calls)
            corners.insert(corners.end(), call.corners.begin(), call.corners.end());
        return corners;
    }

    test::RecordingRenderer renderer;
    ImageFontRenderer fonts;
    std::string log;
};

TEST_F(ImageFontRendererTest, StartsWithTheFourFontsAndTheSecondChosen) {
    EXPECT_FLOAT_EQ(fonts.textWidth("any"), 16);
    EXPECT_FLOAT_EQ(fonts.textHeight("any"), 16);
    ASSERT_TRUE(init());
    EXPECT_FLOAT_EQ(fonts.textHeight(""), 14);
    for (const int size : {12, 14, 18, 24}) {
        fonts.setFont("vera", size);
        EXPECT_FLOAT_EQ(fonts.textHeight(""), static_cast<float>(size));
    }
    fonts.setFont("vera", 16);
    EXPECT_FLOAT_EQ(fonts.textHeight(""), 24);
    fonts.setFont("debug", 12);
    EXPECT_FLOAT_EQ(fonts.textHeight(""), 24);
    ASSERT_TRUE(init()) << "after a change of mode";
    EXPECT_FLOAT_EQ(fonts.textHeight(""), 14);
}

TEST_F(ImageFontRendererTest, AFontThatCannotBeReadFailsTheStart) {
    std::filesystem::remove(data() + "/data/fonts/verabd_18.xml");
    EXPECT_FALSE(init());
    EXPECT_NE(log.find("Could not load font file 'data/fonts/verabd_18.xml'\n"), std::string::npos);
    font("verabd_18.xml", "<f><descriptors>");
    EXPECT_FALSE(init());
    EXPECT_NE(log.find("Could not load font file 'data/fonts/verabd_18.xml'\n"), std::string::npos);
    fonts.unloadFonts();
    EXPECT_TRUE(draw(0, 0, "a").empty());
}

TEST_F(ImageFontRendererTest, MeasuresAndCentres) {
    ASSERT_TRUE(init());
    EXPECT_FLOAT_EQ(fonts.textWidth(""), 0);
    EXPECT_FLOAT_EQ(fonts.textWidth("a"), 10);
    EXPECT_FLOAT_EQ(fonts.textWidth("aw "), 10 + 16 + 5);
    fonts.setScale(3);
    EXPECT_FLOAT_EQ(fonts.getScale(), 3);
    EXPECT_FLOAT_EQ(fonts.textWidth("abcde"), 50) << "measures are unscaled";
    EXPECT_FLOAT_EQ(fonts.centreX(0, 200, "abcde"), 75);
    EXPECT_FLOAT_EQ(fonts.centreY(100, 20, "abcde"), 100 - 10 - 7);
}

TEST_F(ImageFontRendererTest, SetsGlyphsOnTheLine) {
    ASSERT_TRUE(init());
    renderer.setColour(1, 2, 3, 4);
    const auto c = draw(10.7F, 50.9F, "a wb");
    ASSERT_EQ(c.size(), 12U);
    // Whole pixels; two of the ten rows below the line.
    const float left[3] = {10, 25, 41};
    for (std::size_t i = 0; i < 3; ++i) {
        const float width = i == 1 ? 15 : 8;
        const QuadVertex* q = &c[i * 4];
        EXPECT_FLOAT_EQ(q[0].x, left[i]) << i;
        EXPECT_FLOAT_EQ(q[2].x, left[i] + width) << i;
        EXPECT_FLOAT_EQ(q[0].y, 58) << i;
        EXPECT_FLOAT_EQ(q[2].y, 48) << i;
        EXPECT_FLOAT_EQ(q[1].z, 3);
        EXPECT_FLOAT_EQ(q[0].u, 0);
        EXPECT_FLOAT_EQ(q[0].v, 1);
        EXPECT_FLOAT_EQ(q[2].u, width / 256);
        EXPECT_FLOAT_EQ(q[2].v, 246.0F / 256);
        EXPECT_EQ(q[3].a, 4);
        EXPECT_EQ(q[3].b, 3);
    }
    const DrawCall call = renderer.calls.at(0);
    EXPECT_EQ(renderer.calls.size(), 1U) << "one page, one batch";
    EXPECT_EQ(call.text, "data/fonts/verabd_14.png");
    EXPECT_TRUE(call.blending);
    EXPECT_FALSE(call.additive);
    fonts.setSnap(false);
    fonts.setScale(2);
    const auto s = draw(10.5F, 50.5F, "wa");
    EXPECT_FLOAT_EQ(s[0].x, 10.5F);
    EXPECT_FLOAT_EQ(s[0].y, 50.5F + 16);
    EXPECT_FLOAT_EQ(s[2].y, 50.5F - 4);
    EXPECT_FLOAT_EQ(s[4].x, 10.5F + 31);
}

TEST_F(ImageFontRendererTest, ShadowIsOnePixelRightAndBelow) {
    ASSERT_TRUE(init());
    renderer.setColour(9, 9, 9, 9);
    renderer.calls.clear();
    fonts.drawShadowText(20, 30, "a");
    ASSERT_EQ(renderer.calls.size(), 2U);
    const QuadVertex& shadow = renderer.calls[0].corners.at(0);
    const QuadVertex& text = renderer.calls[1].corners.at(0);
    EXPECT_FLOAT_EQ(shadow.x, 21);
    EXPECT_FLOAT_EQ(shadow.y, 37);
    EXPECT_EQ(shadow.r, 0);
    EXPECT_FLOAT_EQ(text.x, 20);
    EXPECT_FLOAT_EQ(text.y, 38);
    EXPECT_EQ(text.r, 255);
    EXPECT_EQ(text.a, 255);
}

TEST_F(ImageFontRendererTest, BytesWithoutADescriptorAreSkippedAndSaid) {
    font("verabd_14.xml", test::fontFile(128, "verabd_14.png", glyph));
    ASSERT_TRUE(init());
    const auto c = draw(0, 0,
                        "a\xe4\xff"
                        "b");
    EXPECT_EQ(log, "NULL CHARACTER DESCRIPTOR\nNULL CHARACTER DESCRIPTOR\n");
    ASSERT_EQ(c.size(), 8U);
    EXPECT_FLOAT_EQ(c[4].x, 10);
    EXPECT_FLOAT_EQ(fonts.textWidth("a\xe4"), 10);
}

TEST_F(ImageFontRendererTest, LongTextsKeepTheirOrderAcrossBatches) {
    ASSERT_TRUE(init());
    const auto c = draw(0, 0, std::string(200, 'a'));
    ASSERT_EQ(c.size(), 800U);
    for (std::size_t i = 0; i < 200; ++i)
        EXPECT_FLOAT_EQ(c[i * 4].x, static_cast<float>(i * 10));
}

TEST_F(ImageFontRendererTest, ALaterFontOfTheSameNameAndSizeWins) {
    ASSERT_TRUE(init());
    font("other.xml", test::fontFile(256, "other.png", [](int) { return TestGlyph{1, 1, 1, 29}; }));
    EXPECT_TRUE(fonts.loadFont("other.xml", "vera", 18));
    fonts.setFont("vera", 18);
    EXPECT_FLOAT_EQ(fonts.textWidth("a"), 30);
    logOf([this] { EXPECT_FALSE(fonts.loadFont("none.xml", "vera", 18)); });
}

TEST_F(ImageFontRendererTest, SurvivesDamagedFiles) {
    const std::string huge =
        "<f><descriptors><c x='-2147483648' y='-2147483648' width='2147483647' "
        "height='2147483647' top='2147483647' xadvance='1e38'/></descriptors></f>";
    const std::string damaged[] = {
        "<f/>",
        "<f><descriptors/><imageindex/></f>",
        "<f><imageindex><i/></imageindex><descriptors><c/><c image='../../x'/></descriptors></f>",
        huge,
    };
    for (const std::string& text : damaged) {
        font("verabd_14.xml", text);
        ASSERT_TRUE(init()) << text;
        draw(0, 0, std::string_view("\0\1abc", 5));
        EXPECT_LT(fonts.textWidth(std::string_view("\0\0", 2)), 20000) << text;
    }
    // More descriptors than there are bytes: the rest is not looked at.
    font("verabd_14.xml", test::fontFile(5000, "verabd_14.png", glyph));
    ASSERT_TRUE(init());
    EXPECT_EQ(fonts.currentFont()->getDescriptor(256), nullptr);
    EXPECT_NE(fonts.currentFont()->getDescriptor(255), nullptr);
}

TEST_F(ImageFontRendererTest, SaysSoWithoutARenderer) {
    EXPECT_EQ(logOf([this] { fonts.setRenderer(nullptr); }), "NULL RENDERER SET\n");
    logOf([this] {
        EXPECT_FALSE(fonts.init());
        fonts.drawShadowText(0, 0, "a");
    });
}

TEST(Font, CreatesDescriptorsInTheirPlace) {
    Font font;
    EXPECT_EQ(font.getDescriptor(5), nullptr);
    EXPECT_FLOAT_EQ(font.glyphHeight(5), 0);
    font.createDescriptor(5);
    font.createDescriptor(-1);
    font.createDescriptor(256);
    EXPECT_EQ(font.getDescriptor(4), nullptr);
    font.getDescriptor(5)->height = 7;
    EXPECT_FLOAT_EQ(font.glyphHeight(5), 7);
    font.createDescriptor(5);
    EXPECT_FLOAT_EQ(font.glyphHeight(5), 0);
}

// The fonts that the build made: every letter has its own place with a mark in it, and figures
// are equally wide, so that a counter does not tremble.
TEST(ShippedFonts, HaveLegibleGlyphsForLatin) {
    files::setFolders(test::gamePath(""), test::gamePath(""));
    for (const char* file : {"vera_12.xml", "verabd_14.xml", "verabd_18.xml", "verabd_24.xml"}) {
        Font font;
        testing::internal::CaptureStdout();
        const bool loaded = font.load(file);
        testing::internal::GetCapturedStdout();
        ASSERT_TRUE(loaded) << file;
        std::map<std::string, Image> pages;
        for (const std::string& page : font.getImageNames()) {
            auto image = loadImage("data/fonts/" + page);
            ASSERT_TRUE(image) << page;
            EXPECT_EQ(image->bitsPerPixel, 32);
            EXPECT_EQ(image->width, 256);
            EXPECT_EQ(image->height, 256);
            pages.emplace(page, std::move(*image));
        }
        for (int code = 0; code < 256; ++code)
            ASSERT_NE(font.getDescriptor(code), nullptr) << file << ' ' << code;
        for (int code = 33; code < 256; ++code) {
            if (code >= 127 && code <= 160)
                continue;
            const CharacterDescriptor& d = *font.getDescriptor(code);
            ASSERT_TRUE(pages.contains(d.image)) << file << ' ' << code;
            ASSERT_TRUE(d.x >= 0 && d.x + d.width <= 256 && d.y <= 256 && d.y - d.height >= 0)
                << file << ' ' << code;
            int strongest = 0;
            for (int y = d.y - d.height; y < d.y; ++y)
                for (int x = d.x; x < d.x + d.width; ++x) {
                    const std::uint8_t* p =
                        &pages[d.image].pixels[static_cast<std::size_t>(y * 256 + x) * 4];
                    EXPECT_EQ(p[0], 255);
                    strongest = std::max(strongest, static_cast<int>(p[3]));
                }
            // A soft hyphen and small marks may be faint, letters and figures not.
            if (code < 127) {
                EXPECT_GT(strongest, 150) << file << ' ' << code;
            }
        }
        const auto step = [&font](int code) {
            const CharacterDescriptor& d = *font.getDescriptor(code);
            return std::max(d.xadvance, static_cast<float>(d.width));
        };
        for (int code = '1'; code <= '9'; ++code)
            EXPECT_FLOAT_EQ(step(code), step('0')) << file << ' ' << code;
    }
    files::setFolders("", "");
}

}  // namespace
}  // namespace bc
