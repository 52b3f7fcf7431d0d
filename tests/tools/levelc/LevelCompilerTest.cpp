// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "AssetIndex.h"
#include "BodyTypes.h"
#include "ConvexCut.h"
#include "LevelCompiler.h"
#include "Problems.h"
#include "TiledMap.h"
#include "XmlFile.h"

#include "core/Text.h"
#include "core/Vector.h"
#include "resources/XmlAttributes.h"
#include "support/Places.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tinyxml.h>

#include <cmath>
#include <filesystem>

namespace bc::levelc {
namespace {

const std::string assets = test::sourcePath("assets");
const std::string start =
    R"(<object id="1" name="start" type="spawnpoint" x="40" y="40"><properties>
       <property name="startpoint" value="true"/></properties><point/></object>)";

std::string map(const std::string& objects, const std::string& layerProperties = "") {
    return R"(<map orientation="orthogonal" width="40" height="40" tilewidth="16" tileheight="16">)"
           "<objectgroup>" +
           layerProperties + objects + "</objectgroup></map>";
}
std::string properties(const std::string& list) {
    // name=value name=value ...
    std::vector<std::string> pairs;
    tokenise(" ", list, pairs);
    std::string out = "<properties>";
    for (const std::string& pair : pairs) {
        const std::size_t equals = pair.find('=');
        out += "<property name=\"" + pair.substr(0, equals) + "\" value=\"" +
               pair.substr(equals + 1) + "\"/>";
    }
    return out + "</properties>";
}
std::string object(const std::string& type, const std::string& list = "",
                   const std::string& shape = "<polygon points=\"0,0 64,0 64,64 0,64\"/>") {
    return "<object id=\"7\" name=\"thing\" type=\"" + type + "\" x=\"100\" y=\"100\">" +
           properties(list) + shape + "</object>";
}

class LevelCompilerTest : public testing::Test {
  protected:
    Level compile(const std::string& xml, std::vector<std::string>& lines) {
        Problems problems("m.tmx");
        const TiledMap tiled = readTiledMap(xml, problems);
        Level level = compileLevel(tiled, types_, SourceAssets(assets), problems);
        lines = problems.lines();
        return level;
    }
    Level compileWell(const std::string& xml) {
        std::vector<std::string> lines;
        Level level = compile(xml, lines);
        EXPECT_THAT(lines, testing::IsEmpty());
        return level;
    }

    BodyTypes types_;
};

std::string param(const LevelBody& body, const std::string& name) {
    for (const auto& [key, value] : body.params) {
        if (key == name)
            return value;
    }
    return "missing";
}

struct BadObject {
    std::string objects;
    std::string message;
};

TEST_F(LevelCompilerTest, NamesEachFaultWithItsObject) {
    const std::string thing = "m.tmx: object 7 \"thing\": ";
    const std::string cross = "<polygon points=\"0,0 64,64 64,0 0,64\"/>";
    const std::string angle = "<polygon points=\"0,0 64,0 64,20 20,20 20,64 0,64\"/>";
    const std::vector<BadObject> cases{
        {start + object(""), thing + "has no type"},
        {start + object("wall"), thing + "unknown type wall"},
        {start + object("player"), thing + "only the game itself makes a player"},
        {start + object("default", "sollid=true"), thing + "unknown property sollid"},
        {start + object("default", "speed=3"), thing + "unknown property speed"},
        {start + object("default", "mass=heavy"),
         thing + "property mass should be a number, not \"heavy\""},
        {start + object("default", "mass=inf"), thing + "property mass should be a number"},
        {start + object("default", "outlinewidth=1.5"),
         thing + "property outlinewidth should be a whole number"},
        {start + object("default", "solid=yes"), thing + "property solid should be true or false"},
        {start + object("default", "colour=red"), thing + "property colour should be a colour"},
        {start + object("default", "gradient=round"),
         thing + "property gradient should be one of down, up, right, left"},
        {start + object("door", "openoffset=12"), thing + "property openoffset should be two or"},
        {start + object("door"), thing + "needs the property openoffset"},
        {start + object("levelchange"), thing + "leads nowhere"},
        {start + object("levelchange", "iscutscene=true leveltarget=hangar"),
         thing + "leads nowhere"},
        {start + object("levelchange", "leveltarget=nowhere"),
         thing + "property leveltarget: there is no map nowhere"},
        {start + object("levelchange", "leveltarget=circuit targetspawn=finish_line"),
         thing + "property targetspawn: the map circuit has no spawn point finish_line"},
        {start + object("wavecontroller", "wavefile=data/waves/workshop.xml", "<point/>"),
         thing + "property wavefile: data/waves/workshop.xml triggers wave_"},
        {start + object("trigger", "targets=start,gate"),
         thing + "property targets: there is no object named gate"},
        {start + object("racestart", "endbody=gate"),
         thing + "property endbody: there is no object named gate"},
        {start + object("spawner", "spawnedtype=player"), thing + "property spawnedtype: there is"},
        {start + object("spawner", "spawnedtype=dragon"),
         thing + "property spawnedtype: there is no body type dragon"},
        {start + object("detail", "texture=data/images/none.png"),
         thing + "property texture: there is no picture data/images/none.png"},
        {start + object("detail", "texture=data/images/../images/metal1.png"),
         thing + "property texture: there is no picture"},
        {start + object("detail", "textured=true"), thing + "is textured but has no texture"},
        {start + object("soundbody", "sound=data/sounds/effects/none.wav"),
         thing + "property sound: there is no sound data/sounds/effects/none.wav"},
        {start + object("particlesystembody", "systemid=none"),
         thing + "property systemid: there is no particle system none"},
        {start + object("skytransition", "sky=none"), thing + "property sky: there is no sky none"},
        {start + object("wavecontroller", "wavefile=data/none.xml", "<point/>"),
         thing + "property wavefile: there is no file data/none.xml"},
        {start + object("default", "", "<point/>"), thing + "a default needs an area"},
        {start + object("default", "", "<polygon points=\"0,0 64,0 128,0\"/>"),
         thing + "its polygon has no area"},
        {start + object("default", "", cross), thing + "its polygon"},
        {start + object("trigger", "", angle), thing + "its polygon has to be convex"},
        {start + object("default", "mass=5", angle), thing + "its polygon has to be convex"},
        {start + object("default", "outlined=true", angle), thing + "an outlined polygon"},
        {start + R"(<object id="7" name="a,b" type="detail" width="9" height="9"/>)",
         "m.tmx: object 7 \"a,b\": its name has a comma"},
        {start + R"(<object id="7" name="a b" type="namedpoint"><point/></object>)",
         "m.tmx: object 7 \"a b\": the name of a place has a space"},
        {object("default"), "m.tmx: has no start point"},
        {start + object("spawnpoint", "startpoint=true"), thing + "is a second start point"},
    };
    for (const BadObject& c : cases) {
        std::vector<std::string> lines;
        (void)compile(map(c.objects), lines);
        ASSERT_EQ(lines.size(), 1U) << c.message << testing::PrintToString(lines);
        EXPECT_THAT(lines[0], testing::StartsWith(c.message));
    }
}

TEST_F(LevelCompilerTest, LayersSpeakOnlyToTypesThatKnowTheProperty) {
    const std::string layer = properties("speed=30 z-shift=-5");
    const Level level = compileWell(map(start + object("door", "openoffset=0,64"), layer));
    ASSERT_EQ(level.bodies.size(), 2U);
    EXPECT_THAT(level.bodies[1].attributes, testing::Contains(testing::Pair("speed", "30")));
    EXPECT_EQ(param(level.bodies[0], "z-shift"), "-5");
    EXPECT_THAT(level.bodies[0].attributes,
                testing::Not(testing::Contains(testing::Pair("speed", "30"))));

    std::vector<std::string> lines;
    (void)compile(map(start, properties("sped=30")), lines);
    EXPECT_THAT(lines, testing::ElementsAre(testing::HasSubstr("unknown property sped")));
}

TEST_F(LevelCompilerTest, FillsInTheTypesDefaults) {
    const Level level = compileWell(map(start + object("shotgunammo", "ammo=7", "<point/>")));
    const LevelBody& ammo = level.bodies[1];
    EXPECT_EQ(param(ammo, "texture"), "data/images/shotgunammo.png");
    EXPECT_EQ(param(ammo, "textured"), "true");
    EXPECT_EQ(param(ammo, "entity"), "true");
    EXPECT_EQ(param(ammo, "solid"), "false");
    EXPECT_EQ(param(ammo, "outlinecolour"), "88,224,255,255");
    EXPECT_EQ(param(ammo, "colour"), "missing");
    EXPECT_EQ(
        ammo.attributes,
        (LevelBody::Texts{{"respawndelay", "5000"}, {"ammotype", "shotgunammo"}, {"ammo", "7"}}));
    // A point becomes the type's box, and its picture covers it once.
    ASSERT_EQ(ammo.corners.size(), 4U);
    EXPECT_EQ(ammo.corners[0].place, (Point{92, 532}));
    EXPECT_EQ(ammo.corners[2].place, (Point{108, 548}));
    EXPECT_EQ(ammo.corners[0].texture, (Point{0, 0}));
    EXPECT_EQ(ammo.corners[2].texture, (Point{1, 1}));
    // What moves is an entity unless the object says otherwise.
    for (const auto& [set, entity] : {std::pair("", "false"), std::pair("mass=5", "true"),
                                      std::pair("mass=5 entity=false", "false")})
        EXPECT_EQ(param(compileWell(map(start + object("default", set))).bodies[1], "entity"),
                  entity);
}

TEST_F(LevelCompilerTest, CutsGeometryAndKeepsColoursAndTexturesContinuous) {
    const std::string angle = "<polygon points=\"0,0 96,0 96,32 32,32 32,96 0,96\"/>";
    const Level level = compileWell(
        map(start + object("default",
                           "texture=data/images/metal1.png texsize=64 texhscale=2 texvshift=0.25 "
                           "colour=#ff000000 colour2=#ffff8000",
                           angle)));
    ASSERT_EQ(level.bodies.size(), 3U);
    for (std::size_t i = 1; i < 3; ++i) {
        EXPECT_EQ(level.bodies[i].name, "thing");
        for (const LevelCorner& c : level.bodies[i].corners) {
            EXPECT_NEAR(c.texture.x, c.place.x / 64 * 2, 1e-9);
            EXPECT_NEAR(c.texture.y, c.place.y / 64 + 0.25, 1e-9);
            // The editor's 100 is 540 here; the polygon reaches down to 444.
            const int red = static_cast<int>(std::lround(255 * (540 - c.place.y) / 96));
            EXPECT_THAT(c.colour, testing::StartsWith(std::to_string(red) + ","));
        }
    }
}

TEST_F(LevelCompilerTest, ClosesTheOutlineOfTheGame) {
    const Level level = compileWell(map(start + object("default", "outlined=true")));
    const std::vector<LevelCorner>& corners = level.bodies[1].corners;
    ASSERT_EQ(corners.size(), 5U);
    EXPECT_NEAR(length(corners[4].place - corners[0].place), 0.5, 1e-9);
    Polygon polygon;
    for (const LevelCorner& c : corners)
        polygon.push_back(c.place);
    EXPECT_DOUBLE_EQ(signedArea(polygon), 64 * 64);
}

TEST_F(LevelCompilerTest, LaysShiningEdgesAsDecoration) {
    const Level level =
        compileWell(map(start + object("default", "edge=#80ff4fae edgeglow=false z-shift=-3")));
    ASSERT_EQ(level.bodies.size(), 6U);
    for (std::size_t i = 2; i < 6; ++i) {
        const LevelBody& band = level.bodies[i];
        EXPECT_EQ(band.type, "detail");
        EXPECT_EQ(param(band, "solid"), "false");
        EXPECT_EQ(param(band, "texture"), "data/images/edge.png");
        EXPECT_EQ(param(band, "z-shift"), "-2.95");
        EXPECT_EQ(band.attributes, (LevelBody::Texts{{"glow", "false"}}));
        EXPECT_EQ(band.corners[0].colour, "255,79,174,128");
    }
}

TEST_F(LevelCompilerTest, WritesWhatTheLevelLoaderReads) {
    const std::string xml =
        map(start + object("messagebody", "message=&lt;&quot;go&quot;&amp;stop&gt; targets=start",
                           "<polygon points=\"0.1,0 64.7,0 64.7,64.123456\"/>"));
    const std::string text = writeLevel(compileWell(xml));
    EXPECT_EQ(text, writeLevel(compileWell(xml)));

    TiXmlDocument document;
    ASSERT_EQ(parseXml(text, document), "");
    const TiXmlElement* p =
        document.RootElement()->FirstChildElement("Objects")->FirstChildElement("P");
    EXPECT_EQ(xml::readString(*p, "type"), "spawnpoint");
    p = p->NextSiblingElement("P");
    EXPECT_EQ(xml::readString(*p, "idname"), "thing");
    const TiXmlElement* params = p->FirstChildElement("params");
    EXPECT_EQ(xml::readString(*params, "targets"), "start");
    EXPECT_TRUE(xml::readBool(*params, "entity"));
    EXPECT_EQ(xml::readFloat(*params, "texhscale"), 1);
    const TiXmlElement* v = p->FirstChildElement("verts")->FirstChildElement("v");
    const std::vector<Vector> places{{164.7F, 475.876544F}, {164.7F, 540}, {100.1F, 540}};
    for (const Vector& place : places) {
        ASSERT_NE(v, nullptr);
        EXPECT_TRUE(Vector(xml::readString(*v, "origin")).equals(place));
        EXPECT_EQ(xml::readString(*v, "colour"), "255,255,255,255");
        v = v->NextSiblingElement("v");
    }
    EXPECT_EQ(v, nullptr);
    std::string message;
    const TiXmlElement* a = p->FirstChildElement("attributes")->FirstChildElement("a");
    for (; a != nullptr; a = a->NextSiblingElement("a")) {
        if (xml::readString(*a, "name") == "message")
            message = xml::readString(*a, "value");
    }
    EXPECT_EQ(message, "<\"go\"&stop>");
}

TEST_F(LevelCompilerTest, EveryShippedMapIsInOrder) {
    int maps = 0;
    for (const auto& entry : std::filesystem::directory_iterator(assets + "/maps")) {
        if (entry.path().extension() != ".tmx")
            continue;
        ++maps;
        std::string text;
        ASSERT_EQ(readFile(entry.path().string(), text), "");
        const Level level = compileWell(text);
        EXPECT_GE(level.bodies.size(), 80U) << entry.path();
        for (const LevelBody& body : level.bodies) {
            Polygon polygon;
            for (const LevelCorner& c : body.corners)
                polygon.push_back(c.place);
            EXPECT_TRUE(isConvex(cleaned(polygon))) << body.name;
        }
    }
    EXPECT_GE(maps, 1);
}

}  // namespace
}  // namespace bc::levelc
