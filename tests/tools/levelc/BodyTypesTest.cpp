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

TEST(BodyTypesTest, EveryDefaultIsAValueAndHasItsFile) {
    const BodyTypes types;
    const SourceAssets assets(source + "assets");
    for (const BodyType& type : types.types()) {
        EXPECT_NE(types.findUse(type.use), nullptr) << type.name;
        EXPECT_FALSE(type.doc.empty()) << type.name;
        for (const Param& param : type.params) {
            SCOPED_TRACE(type.name + ' ' + param.name);
            EXPECT_FALSE(param.doc.empty());
            const std::string value = param.defaultText.value_or("");
            if (value.empty())
                continue;
            EXPECT_EQ(BodyTypes::checkText(param, value), "");
            EXPECT_EQ(assets.checkFile(param.kind, value), "");
        }
    }
}

TEST(BodyTypesTest, TakesTypesParametersAndDefaultsFromTheGame) {
    const BodyTypes types;
    EXPECT_EQ(types.types().front().name, "default");
    EXPECT_EQ(types.find("turret"), nullptr) << "a type that the game does not have yet";
    const BodyType* door = types.find("door");
    ASSERT_NE(door, nullptr);
    EXPECT_EQ(door->find("solid")->defaultText, "true");
    EXPECT_EQ(door->find("speed")->defaultText, "120") << "of a new door, the class has 0";
    EXPECT_EQ(door->find("speed")->realDefault, "0");
    EXPECT_TRUE(door->find("openoffset")->required);
    EXPECT_EQ(door->find("openoffset")->defaultText, std::nullopt);
    EXPECT_EQ(door->find("health"), nullptr) << "doors cannot be hurt";
    const BodyType* barrel = types.find("explodingbarrel");
    EXPECT_EQ(barrel->find("health")->realDefault, "2");
    EXPECT_EQ(barrel->find("health")->defaultText, std::nullopt) << "written only where it is set";
    EXPECT_EQ(barrel->size, (Point{16, 24}));
    EXPECT_EQ(types.find("shotgun")->size, (Point{32, 16})) << "its default shape";
    EXPECT_EQ(types.find("cashpickup")->find("glow")->realDefault, "true");
    EXPECT_EQ(types.find("chaingunammo")->find("ammo")->defaultText, "50");
    EXPECT_EQ(types.find("shotgunammo")->find("ammo")->defaultText, "10");
    EXPECT_TRUE(types.find("gib")->runtimeOnly);
    EXPECT_TRUE(types.find("water")->canBeCut);
    const Param* font = types.find("textbody")->find("font");
    EXPECT_EQ(BodyTypes::checkText(*font, "debug"), "");
    EXPECT_EQ(BodyTypes::checkText(*font, "serif"), "should be one of vera, debug");
}

/// The workshop is the level makers' living reference, and the source of most of the pictures.
TEST(BodyTypesTest, EveryTypeHasAPictureAndStandsInTheWorkshop) {
    std::string workshop;
    ASSERT_EQ(readFile(source + "assets/maps/workshop.tmx", workshop), "");
    const BodyTypes types;
    for (const BodyType& type : types.types()) {
        if (type.runtimeOnly)
            continue;
        std::string picture;
        EXPECT_EQ(readFile(source + "docs/" + pictureOf(type), picture), "") << type.name;
        EXPECT_EQ(picture.substr(1, 3), "PNG") << type.name << ": run tools/typepictures";
        EXPECT_TRUE(workshop.find("type=\"" + type.name + "\"") != std::string::npos) << type.name;
    }
}

TEST(BodyTypesTest, WhatIsMadeOfTheTableIsUpToDate) {
    const BodyTypes types;
    const std::vector<std::pair<std::string, std::string>> made{
        {"assets/maps/brightclash.tiled-project", tiledProject(types)},
        {"assets/maps/objecttypes.xml", objectTypes(types)},
        {"docs/bodytypes.md", levelReference(types)}};
    for (const auto& [path, text] : made) {
        std::string committed;
        ASSERT_EQ(readFile(source + path, committed), "");
        EXPECT_TRUE(committed == text) << path << ": run levelc --write assets";
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
