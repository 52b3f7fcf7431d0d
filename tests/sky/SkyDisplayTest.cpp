// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "sky/BaseSky.h"
#include "sky/SkyManager.h"
#include "support/DisplayFixture.h"

#include <string>
#include <utility>

namespace bc {
namespace {

using test::isColour;

class SkyDisplayTest : public test::DisplayFixture {
  protected:
    /// A ground of the size that the shipped skies have, and what else stands in text.
    void makeSky(const std::string& attributes, const std::string& text) {
        put(data() + "/data/sky/s.xml",
            "<sky " + attributes +
                "><rect pos='-26000,11500,-9488' dimension='52000,23000' blendstyle='2'"
                " mincol='40,80,120,255' maxcol='40,80,120,255'/>" +
                text + "</sky>");
        ASSERT_TRUE(skies.replaceAllByName("s"));
    }
    void drawAt(float x, float y, float camoffset, float dt = 0) {
        renderer->beginFrame();
        renderer->setCamera(x, y, -camoffset);
        skies.draw(*renderer, {x, y, -camoffset}, dt);
    }

    SkyManager skies;
};

TEST_F(SkyDisplayTest, CoversTheWindowWhereverTheCameraIs) {
    makeSky("", "");
    struct Case {
        int width, height;
        float camoffset;
    };
    for (const Case& c : {Case{640, 480, 256}, Case{640, 480, 400}, Case{630, 270, 400}}) {
        ASSERT_TRUE(renderer->setVideoMode(c.width, c.height, false));
        for (const float place : {0.0F, -40000.0F}) {
            drawAt(place, place, c.camoffset);
            look();
            renderer->endFrame();
            const int right = c.width - 1;
            const int top = c.height - 1;
            for (const auto& [x, y] : {std::pair{0, 0}, {right, 0}, {0, top}, {right, top}})
                EXPECT_TRUE(isColour(at(x, y), 40, 80, 120)) << x << ',' << y << " at " << place;
        }
    }
}

TEST_F(SkyDisplayTest, StandsBehindWhateverIsDrawnNext) {
    // Near enough to reach before the plane of play.
    makeSky("",
            "<rect pos='-100,100,500' dimension='200,200' mincol='0,0,0,255'"
            " maxcol='0,0,0,255'/>");
    drawAt(50, 60, 256);
    renderer->setTexturing(false);
    renderer->setBlending(false);
    renderer->setColour(255, 0, 0);
    renderer->drawQuad(40, 70, -700, 20, 20);
    look();
    renderer->endFrame();
    EXPECT_TRUE(isColour(at(width / 2, height / 2), 255, 0, 0));
}

}  // namespace
}  // namespace bc
