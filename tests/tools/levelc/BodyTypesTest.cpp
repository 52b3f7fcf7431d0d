// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "AssetIndex.h"
#include "BodyTypes.h"
#include "EditorTypes.h"
#include "XmlFile.h"

#include "support/Places.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace bc::levelc {
namespace {

const std::string source = test::sourcePath("");

BodyTypes shipped() {
    std::string text;
    BodyTypes types;
    EXPECT_EQ(readFile(source + "/assets/maps/bodytypes.xml", text), "");
    EXPECT_EQ(types.read(text), "");
    return types;
}

TEST(BodyTypesTest, TheShippedTableIsWhole) {
    const BodyTypes types = shipped();
    // Plain geometry and the game's own 93.
    EXPECT_EQ(types.types().size(), 94U);
    const AssetIndex assets(source + "/assets");
    for (const BodyType& type : types.types()) {
        for (const Param& param : type.params) {
            const std::string value = param.defaultText.value_or("");
            const std::string fault = value.empty() ? "" : assets.checkFile(param.type, value);
            EXPECT_EQ(fault, "") << type.name << " " << param.name;
        }
    }
}

/// The workshop is the level makers' living reference, and the source of most of the pictures.
TEST(BodyTypesTest, EveryTypeHasAPictureAndStandsInTheWorkshop) {
    std::string workshop;
    ASSERT_EQ(readFile(source + "/assets/maps/workshop.tmx", workshop), "");
    const BodyTypes types = shipped();
    for (const BodyType& type : types.types()) {
        if (type.runtimeOnly)
            continue;
        std::string picture;
        EXPECT_EQ(readFile(source + "/docs/" + pictureOf(type), picture), "") << type.name;
        EXPECT_EQ(picture.substr(1, 3), "PNG") << type.name << ": run tools/typepictures";
        const bool fights = type.use == "enemy" || type.use == "ally" || type.name == "bossblock";
        EXPECT_TRUE(fights || workshop.find("type=\"" + type.name + "\"") != std::string::npos)
            << type.name;
    }
}

TEST(BodyTypesTest, WhatIsMadeOfTheTableIsUpToDate) {
    const BodyTypes types = shipped();
    const std::vector<std::pair<std::string, std::string>> made{
        {"/assets/maps/brightclash.tiled-project", tiledProject(types)},
        {"/assets/maps/objecttypes.xml", objectTypes(types)},
        {"/docs/bodytypes.md", levelReference(types)}};
    for (const auto& [path, text] : made) {
        std::string committed;
        ASSERT_EQ(readFile(source + path, committed), "");
        EXPECT_TRUE(committed == text) << path << ": run levelc --write assets";
    }
}

TEST(BodyTypesTest, TypesBuildOnGroupsAndReplaceTheirDefaults) {
    BodyTypes types;
    ASSERT_EQ(types.read(R"(<bodytypes><use name="u" colour="#102030" doc="d"/>
        <enum name="e" values="x,y"/>
        <group name="level"><param name="mass" type="float" default="0" doc="d"/></group>
        <group name="drawing"><param name="tint" type="colour" doc="d"/></group>
        <group name="base" on="level,drawing"/>
        <group name="more" on="base"><param name="speed" type="float" doc="d"/></group>
        <type name="a" class="A" use="u" doc="d" mass="5" size="8 16">
          <param name="mode" type="enum:e" default="y" required="true" doc="d"/></type>
        <type name="b" class="B" use="u" doc="d" group="more" speed="2" place="runtime"/>
        </bodytypes>)"),
              "");
    const BodyType* a = types.find("a");
    const BodyType* b = types.find("b");
    ASSERT_NE(a, nullptr);
    ASSERT_NE(b, nullptr);
    EXPECT_EQ(types.find("A"), nullptr);
    EXPECT_EQ(a->find("mass")->defaultText, "5");
    EXPECT_EQ(b->find("mass")->defaultText, "0");
    EXPECT_EQ(b->find("speed")->defaultText, "2");
    EXPECT_EQ(a->find("speed"), nullptr);
    EXPECT_EQ(a->find("mass")->place, ParamPlace::Level);
    EXPECT_EQ(a->find("tint")->place, ParamPlace::Drawing);
    EXPECT_EQ(a->find("mode")->place, ParamPlace::Attribute);
    EXPECT_TRUE(a->find("mode")->required);
    EXPECT_EQ(a->size, (Point{8, 16}));
    EXPECT_TRUE(b->runtimeOnly);
    EXPECT_FALSE(b->size);
}

TEST(BodyTypesTest, SlipsInTheTableAreErrorsAndLeaveTheOldOne) {
    const std::string head = R"(<t><use name="u" colour="#102030" doc="d"/>
        <group name="base"><param name="mass" type="float" doc="d"/></group>)";
    const std::string type = R"(<type name="a" class="A" use="u" doc="d")";
    const std::vector<std::pair<std::string, std::string>> cases{
        {"<t><u></t>", "line 1: "},
        {"<t><thing name=\"n\"/></t>", "thing \"n\": unknown element"},
        {"<t><use name=\"u\" colour=\"red\"/></t>", "use \"u\": colour"},
        {"<t><enum name=\"e\" values=\"\"/></t>", "has no values"},
        {"<t><group name=\"g\" on=\"h\"/></t>", "unknown group, h"},
        {"<t><group name=\"g\"><param name=\"p\" type=\"real\" doc=\"d\"/></group></t>",
         "param p: unknown type, real"},
        {"<t><group name=\"g\"><param name=\"p\" type=\"enum:e\" doc=\"d\"/></group></t>",
         "param p: unknown enum"},
        {"<t><group name=\"g\"><param name=\"p\" type=\"int\"/></group></t>", "name and doc"},
        {"<t><group name=\"g\"><param name=\"p\" type=\"int\" default=\"x\" "
         "doc=\"d\"/></group></t>",
         "param p: should be a whole number"},
        {head + type + " mass=\"x\"/></t>", "mass should be a number"},
        {head + type + " mas=\"1\"/></t>", "unknown attribute, mas"},
        {head + type + " group=\"g\"/></t>", "unknown group, g"},
        {head + type + " size=\"8\"/></t>", "two numbers"},
        {head + type + "/>" + type + "/></t>", "stands there twice"},
        {head + type + "><param name=\"mass\" type=\"int\" doc=\"d\"/></type></t>", "twice"},
        {head + "<type name=\"a\" class=\"A\" use=\"v\" doc=\"d\"/></t>", "unknown use, v"},
        {head + "<type name=\"a\" use=\"u\" doc=\"d\"/></t>", "needs name, class and doc"},
    };
    BodyTypes types;
    ASSERT_EQ(types.read(head + type + "/></t>"), "");
    for (const auto& [xml, message] : cases) {
        EXPECT_THAT(types.read(xml), testing::HasSubstr(message)) << xml;
        EXPECT_EQ(types.types().size(), 1U);
    }
}

TEST(BodyTypesTest, ReadsColoursOfTheEditor) {
    EXPECT_EQ(gameColour("#80ff4f0a"), "255,79,10,128");
    EXPECT_EQ(gameColour("#ff4f0a"), "255,79,10,255");
    for (const char* bad : {"", "#", "ff4f0a", "#ff4f0", "#ff4f0g", "#+14f0a", "#ff4f0a0"})
        EXPECT_FALSE(gameColour(bad)) << bad;
}

}  // namespace
}  // namespace bc::levelc
