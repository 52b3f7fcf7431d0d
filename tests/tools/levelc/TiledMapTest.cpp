// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "Problems.h"
#include "TiledMap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace bc::levelc {
namespace {

std::string map(const std::string& layers) {
    return R"(<map orientation="orthogonal" width="20" height="10" tilewidth="16" tileheight="16">)" +
           layers + "</map>";
}
std::string layer(const std::string& objects) {
    return map("<objectgroup name=\"l\">" + objects + "</objectgroup>");
}

TiledMap readWell(const std::string& xml) {
    Problems problems("m.tmx");
    TiledMap out = readTiledMap(xml, problems);
    EXPECT_THAT(problems.lines(), testing::IsEmpty());
    return out;
}

void expectCorners(const Polygon& corners, const Polygon& expected) {
    ASSERT_EQ(corners.size(), expected.size());
    for (std::size_t i = 0; i < corners.size(); ++i) {
        EXPECT_NEAR(corners[i].x, expected[i].x, 1e-9);
        EXPECT_NEAR(corners[i].y, expected[i].y, 1e-9);
    }
}

TEST(TiledMapTest, ReadsShapesWithYUpwards) {
    const TiledMap m = readWell(layer(
        R"(<object id="3" name="a" type="default" x="10" y="20" width="30" height="40"/>
           <object id="4" type="detail" x="10" y="20"><polygon points="0,0 5.5,0 -2,8"/></object>
           <object id="5" class="namedpoint" x="7" y="150"><point/></object>
           <object id="6" type="default" x="100" y="100" width="20" height="20" rotation="90"/>
           <object id="7" type="default" x="0" y="0" width="64" height="32"><ellipse/></object>)"));
    ASSERT_EQ(m.objects.size(), 5U);
    EXPECT_EQ(m.objects[0].id, 3);
    EXPECT_EQ(m.objects[0].name, "a");
    expectCorners(m.objects[0].corners, {{10, 140}, {40, 140}, {40, 100}, {10, 100}});
    expectCorners(m.objects[1].corners, {{10, 140}, {15.5, 140}, {8, 132}});
    EXPECT_EQ(m.objects[2].type, "namedpoint");
    EXPECT_TRUE(m.objects[2].corners.empty());
    EXPECT_EQ(m.objects[2].place, (Point{7, 10}));
    // A quarter turn clockwise about its upper left corner.
    expectCorners(m.objects[3].corners, {{100, 60}, {100, 40}, {80, 40}, {80, 60}});
    ASSERT_EQ(m.objects[4].corners.size(), static_cast<std::size_t>(ellipseCorners));
    const Box box = boundsOf(m.objects[4].corners);
    EXPECT_NEAR(box.low.x + box.high.x, 64, 1e-9);
    EXPECT_NEAR(box.high.x, 63.385, 0.001);
}

TEST(TiledMapTest, InheritsPropertiesAndOffsetsOfLayersAndGroups) {
    const TiledMap m = readWell(map(R"(
        <group offsetx="5" offsety="6"><properties><property name="z-shift" value="-3"/>
          <property name="solid" value="true"/></properties>
        <objectgroup offsetx="1"><properties><property name="solid" value="false"/></properties>
          <object id="1" x="0" y="0"><properties><property name="z-shift" value="9"/>
            <property name="message">two
lines</property></properties><point/></object></objectgroup></group>)"));
    ASSERT_EQ(m.objects.size(), 1U);
    EXPECT_EQ(m.objects[0].place, (Point{6, 154}));
    EXPECT_EQ(m.objects[0].properties.at("z-shift"), "9");
    EXPECT_EQ(m.objects[0].properties.at("solid"), "false");
    EXPECT_EQ(m.objects[0].properties.at("message"), "two lines");
    EXPECT_THAT(m.objects[0].fromLayer, testing::ElementsAre(testing::Pair("solid", true)));
}

struct BadMap {
    std::string xml;
    std::string message;
};

TEST(TiledMapTest, TellsWhatALevelCannotHold) {
    const std::string id = R"(<object id="12" name="wall" x="0" y="0")";
    const std::vector<BadMap> cases{
        {"", "m.tmx: "},
        {"<map><object></map>", "m.tmx: line 1: "},
        {"<tileset/>", "m.tmx: is not a Tiled map"},
        {R"(<map orientation="isometric" height="1" tileheight="9"/>)", "orthogonal"},
        {map("<layer name=\"ground\"/>"), "m.tmx: layer \"ground\": tiles"},
        {layer(id + " gid=\"3\" width=\"9\" height=\"9\"/>"), "is a tile"},
        {layer(id + " template=\"t.tx\"/>"), "templates"},
        {layer(id + "><text>hi</text></object>"), "editor text"},
        {layer(id + "><polyline points=\"0,0 1,1\"/></object>"), "open line"},
        {layer(id + "><polygon points=\"0,0 1,1 2\"/></object>"), "not two numbers"},
        {layer(id + "><polygon points=\"0,0 1,x 2,2\"/></object>"), "not two numbers"},
        {layer(id + "><polygon points=\"0,0 inf,0 2,2\"/></object>"), "not two numbers"},
        {layer(id + "><polygon points=\"0,0 9e9,0 2,2\"/></object>"), "beyond the world"},
        {layer(id + " width=\"9\"/>"), "no area"},
    };
    for (const BadMap& c : cases) {
        Problems problems("m.tmx");
        EXPECT_TRUE(readTiledMap(c.xml, problems).objects.empty()) << c.xml;
        ASSERT_EQ(problems.lines().size(), 1U) << c.xml;
        EXPECT_THAT(problems.lines()[0], testing::HasSubstr(c.message));
        const bool ofObject = c.xml.find("<object id") != std::string::npos;
        EXPECT_THAT(problems.lines()[0],
                    testing::StartsWith(ofObject ? "m.tmx: object 12 \"wall\": " : "m.tmx: "));
    }
}

}  // namespace
}  // namespace bc::levelc
