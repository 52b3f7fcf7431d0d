// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "sky/SkyQuad.h"
#include "support/RecordingRenderer.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

namespace bc {
namespace {

SkyQuad quadOf(const char* text) {
    TiXmlDocument document;
    document.Parse(text);
    SkyQuad quad;
    quad.read(*document.RootElement());
    return quad;
}

TEST(SkyQuad, ReadsCornersClockwiseFromTheTopLeft) {
    const SkyQuad quad = quadOf(
        "<rect pos='-10,20,-5' dimension='30,40' textured='true' clamptex='true' texture='t.png'"
        " glow='false' glowsteps='2' blendstyle='2' mincol='1,2,3,4' maxcol='5,6,7,8'"
        " tlcol='1,0,0,0' trcol='2,0,0,0' brcol='3,0,0,0' blcol='4,0,0'"
        " tlcolvel='0,10,0,0' brcolvel='0,0,30,0' trtexcoord='1,2' bltexcoord='7'/>");
    const float corners[][2] = {{-10, 20}, {20, 20}, {20, -20}, {-10, -20}};
    const float reds[] = {1, 2, 3, 0};
    ASSERT_EQ(quad.vertices().size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(quad.vertices()[i].x, corners[i][0]);
        EXPECT_EQ(quad.vertices()[i].y, corners[i][1]);
        EXPECT_EQ(quad.vertices()[i].z, -5);
        EXPECT_EQ(quad.vertices()[i].r, reds[i]);
    }
    EXPECT_EQ(quad.vertices()[1].v, 2);
    EXPECT_EQ(quad.vertices()[3].u, 0);
    EXPECT_EQ(quad.colours()[0].g, 10);
    EXPECT_EQ(quad.colours()[2].b, 30);
    EXPECT_TRUE(quad.textured && quad.clamp && !quad.glow);
    EXPECT_EQ(quad.blendStyle, 2);
    EXPECT_EQ(quad.maxColour, RGBAColour(5, 6, 7, 8));
    EXPECT_EQ(quadOf("<rect/>").blendStyle, SkyQuad::additiveStyle);
}

TEST(SkyQuad, ColoursTurnRoundWhenTheyPassALimit) {
    struct Case {
        const char* name;
        const char* start;
        const char* rate;
        float drawn;
        float rateAfter;
    };
    for (const Case& c :
         {Case{"passes the maximum", "250,0,0,0", "20,0,0,0", 255, -20},
          Case{"meets the maximum", "245,0,0,0", "20,0,0,0", 255, 20},
          Case{"passes the minimum", "45,0,0,0", "-20,0,0,0", 40, 20},
          Case{"meets the minimum", "50,0,0,0", "-20,0,0,0", 40, -20},
          Case{"starts outside", "0,0,0,0", "20,0,0,0", 40, -20},
          Case{"is rounded", "100,0,0,0", "1.2,0,0,0", 101, 1.2F},
          Case{"a rate beyond all bounds", "100,0,0,0", "3e38,0,0,0", 255, -3e38F}}) {
        SkyQuad quad = quadOf((std::string("<rect mincol='40,0,0,0' maxcol='255,0,0,0' tlcol='") +
                               c.start + "' tlcolvel='" + c.rate + "'/>")
                                  .c_str());
        test::RecordingRenderer renderer;
        quad.draw(renderer, 0.5F);
        ASSERT_EQ(renderer.calls.size(), 1U);
        EXPECT_EQ(renderer.calls[0].corners.at(0).r, c.drawn) << c.name;
        EXPECT_EQ(quad.colours()[0].r, c.rateAfter) << c.name;
    }
}

TEST(SkyQuad, GlowIsDrawnInFurtherPassesWithSlowingAlpha) {
    SkyQuad quad = quadOf(
        "<rect glow='true' glowsteps='4' mincol='0,0,0,0' maxcol='255,0,0,255'"
        " tlcol='0,0,0,100' tlcolvel='10,0,0,40' brcol='0,0,0,100'"
        " brcolvel='0,0,0,400'/>");
    test::RecordingRenderer renderer;
    quad.draw(renderer, 1);
    ASSERT_EQ(renderer.calls.size(), 1U);
    const std::vector<QuadVertex>& corners = renderer.calls[0].corners;
    ASSERT_EQ(corners.size(), 16U);
    const int alphas[] = {140, 170, 190, 200};
    for (std::size_t pass = 0; pass < 4; ++pass) {
        EXPECT_EQ(corners[pass * 4].a, alphas[pass]);
        EXPECT_EQ(corners[pass * 4].r, 10 * (pass + 1));
    }
    // Turned round by the first pass, and kept turning by the further ones at the rate left.
    EXPECT_EQ(corners[2].a, 255);
    EXPECT_EQ(corners[6].a, 0);

    SkyQuad none = quadOf("<rect glow='true' glowsteps='-3'/>");
    none.draw(renderer, 1);
    EXPECT_TRUE(renderer.calls[1].corners.empty());
    SkyQuad many = quadOf("<rect glow='true' glowsteps='2000000000'/>");
    many.draw(renderer, 1);
    EXPECT_EQ(renderer.calls[2].corners.size(), 4U * SkyQuad::maxGlowSteps);
}

}  // namespace
}  // namespace bc
