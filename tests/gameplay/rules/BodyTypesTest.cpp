// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// What holds for every body type: its names in files, and that a save brings it back as it was.
#include "core/Text.h"
#include "gameplay/objects/triggers/Spawner.h"
#include "gameplay/rules/BodyTypes.h"
#include "gameplay/rules/GameBodyFactory.h"
#include "resources/XmlAttributes.h"
#include "support/Places.h"
#include "support/PlayFixture.h"
#include "world/BodyFields.h"
#include "world/LevelFormat.h"
#include "world/LevelLoader.h"
#include "world/TypeDescription.h"
#include "world/WorldDump.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <algorithm>
#include <cxxabi.h>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <typeinfo>

namespace bc {
namespace {

namespace fs = std::filesystem;

/// Gives every saved field a value that is not its default, and another one to each.
class Scrambler final : public BodyFields {
  protected:
    Outcome onSaved(const char* name, Ref value, bool /*wanted*/) override {
        ++count_;
        // The world deletes such a body, and ids belong to the world.
        if (std::string(name) == "cancleanup" || std::string(name) == "autoid")
            return Outcome::none;
        std::visit([this](auto* field) { change(*field); }, value);
        return Outcome::given;
    }

  private:
    static void change(bool& field) { field = !field; }
    void change(int& field) const { field += count_; }
    void change(float& field) const { field += static_cast<float>(count_) + 0.1F; }
    void change(std::string& field) const { field += "x" + std::to_string(count_); }
    void change(Vector& field) const {
        field.set(field.x + static_cast<float>(count_) + 0.1F, field.y - 7.3F);
    }
    void change(RGBAColour& field) const { field.g += static_cast<float>(count_); }

    int count_ = 0;
};

/// The saved fields as texts, to the last bit.
class Listing final : public BodyFields {
  public:
    std::map<std::string, std::string> texts;

  protected:
    Outcome onSaved(const char* name, Ref value, bool wanted) override {
        if (wanted)
            std::visit([&](const auto* field) { texts[name] = textOf(*field); }, value);
        return Outcome::none;
    }

  private:
    static std::string textOf(bool value) { return boolText(value); }
    static std::string textOf(int value) { return std::to_string(value); }
    static std::string textOf(float value) { return formatFloat(value, Digits::exact); }
    static std::string textOf(const std::string& value) { return value; }
    static std::string textOf(const auto& value) { return value.toString(Digits::exact); }
};

std::map<std::string, std::string> savedFieldsOf(Body& body) {
    Listing listing;
    body.fields(listing);
    return listing.texts;
}

std::string dumpOf(const Body& body) {
    TiXmlElement root("dump");
    dumpBody(body, root);
    TiXmlPrinter printer;
    root.Accept(&printer);
    return printer.Str();
}

std::string className(const Body& body) {
    int status = 0;
    char* name = abi::__cxa_demangle(typeid(body).name(), nullptr, nullptr, &status);
    const std::string whole = name != nullptr ? name : "";
    std::free(name);
    return whole.substr(whole.rfind(':') + 1);
}

class BodyTypesTest : public test::PlayFixture {
  protected:
    std::unique_ptr<Body> make(const BodyTypeRow& row) {
        auto body = gameplay->getFactory()->create(std::string(row.name));
        body->entity = true;
        body->id = "one";
        body->clearGeometry();
        if (body->usesDefaultShape)
            body->makeDefaultShape();
        else
            body->makeBox(24, 16);
        placeAt(*body, {40, 30});
        return body;
    }
};

TEST_F(BodyTypesTest, EveryTypeHasItsFilesItsDocumentationAndANameOfItsOwn) {
    std::set<std::string> sources;
    for (const auto& entry : fs::recursive_directory_iterator(test::sourcePath("src/gameplay")))
        sources.insert(entry.path().filename());
    const std::string reference = get(test::sourcePath("docs/bodytypes.md"));
    std::set<std::string_view> names;
    for (const BodyTypeRow& row : bodyTypes()) {
        SCOPED_TRACE(row.name);
        EXPECT_TRUE(names.insert(row.name).second);
        const auto body = make(row);
        EXPECT_EQ(body->type, row.name);
        EXPECT_NE(dynamic_cast<GameBody*>(body.get()), nullptr);
        EXPECT_EQ(typeid(*body), typeid(*body->create())) << "create() makes another class";
        const std::string file = className(*body);
        EXPECT_TRUE(sources.contains(file + ".h") && sources.contains(file + ".cpp")) << file;
        if (row.use == "runtime")
            continue;
        EXPECT_NE(reference.find("\n### " + std::string(row.name) + '\n'), std::string::npos)
            << "run levelc --write assets";
        EXPECT_TRUE(
            fs::exists(test::sourcePath("docs/pictures/types/" + std::string(row.name) + ".png")))
            << "run tools/typepictures";
    }
    EXPECT_EQ(gameplay->createBody("nobody"), nullptr);
    std::unique_ptr<Body> plain;
    EXPECT_EQ(logOf([&] { plain = gameplay->getFactory()->create("nobody"); }),
              "Defaulting to Body for: nobody\n");
    EXPECT_EQ(dynamic_cast<GameBody*>(plain.get()), nullptr);
}

/// What a save forgets a continued run loses, and saves of earlier versions must stay readable.
TEST_F(BodyTypesTest, NoNameOfTheSaveFormatIsLost) {
    std::map<std::string, std::vector<std::string>> saved;
    saved["every"] = describeType(*std::make_unique<GameBody>()).saved;
    for (const BodyTypeRow& row : bodyTypes())
        saved[std::string(row.name)] = describeType(*row.make()).saved;
    std::istringstream lines(get(test::sourcePath("tests/gameplay/rules/saved_fields.txt")));
    for (std::string line; std::getline(lines, line);) {
        std::vector<std::string> words;
        tokenise(": ", line, words);
        if (line.starts_with('#'))
            continue;
        const auto& names = saved[words.front()];
        for (const std::string& name : words)
            EXPECT_TRUE(name == words.front() || std::ranges::count(names, name) == 1)
                << words.front() << " lost " << name;
    }
}

TEST_F(BodyTypesTest, ASaveBringsEveryFieldBack) {
    for (const BodyTypeRow& row : bodyTypes()) {
        // The application saves and restores the craft by itself.
        if (row.name == "player")
            continue;
        SCOPED_TRACE(row.name);
        const auto body = make(row);
        Scrambler scrambler;
        body->fields(scrambler);
        placeAt(*body, body->pos);
        auto expected = savedFieldsOf(*body);
        TiXmlElement save("save");
        // In the game's own order: parameters and custom attributes first, then the state.
        TiXmlElement* objects = save.LinkEndChild(new TiXmlElement("Objects"))->ToElement();
        TiXmlElement* p = levelformat::writeBody(*body, *objects, Digits::exact);
        levelformat::writeShape(*body, *p->FirstChildElement("custom"));
        LevelBodies restored;
        logOf([&] { readSavedBodies(*gameplay->getFactory(), save, "save", restored); });
        ASSERT_EQ(restored.size(), 1U);
        Body& twin = *restored.front();
        EXPECT_EQ(typeid(twin), typeid(*body));
        // A save names the owner, who is found when the bodies are in the world.
        expected.erase("ownerid");
        auto found = savedFieldsOf(twin);
        found.erase("ownerid");
        EXPECT_EQ(found, expected);
        twin.updateGeometry();
        twin.computeBounds();
        body->updateGeometry();
        body->computeBounds();
        EXPECT_EQ(dumpOf(twin), dumpOf(*body));
    }
}

TEST_F(BodyTypesTest, LevelsSetEveryParameter) {
    const std::map<ParamKind, std::string> values{{ParamKind::integer, "7"},
                                                  {ParamKind::number, "7.5"},
                                                  {ParamKind::vector, "7,8,9"},
                                                  {ParamKind::colour, "1,2,3,4"}};
    for (const BodyTypeRow& row : bodyTypes())
        for (const ParamInfo& info : describeType(*row.make()).params) {
            if (info.placed || info.name == "blocks")
                continue;
            SCOPED_TRACE(std::string(row.name) + ' ' + info.name);
            EXPECT_FALSE(info.meaning.empty());
            std::string value = "seven.xml";
            if (const auto found = values.find(info.kind); found != values.end())
                value = found->second;
            else if (info.kind == ParamKind::boolean)
                value = boolText(!parseBool(info.realDefault));
            const auto body = row.make();
            logOf([&] { body->applyAttributes({{info.name, value}}); });
            for (const ParamInfo& now : describeType(*body).params)
                EXPECT_TRUE(now.name != info.name || now.realDefault == value) << now.realDefault;
        }
}

TEST_F(BodyTypesTest, WhatASpawnerMakesIsSaved) {
    for (const BodyTypeRow& row : bodyTypes()) {
        // The craft is the application's; gibs are not kept.
        if (row.name == "player" || row.name == "gib")
            continue;
        SCOPED_TRACE(row.name);
        Spawner* spawner = add<Spawner>(Vector(200, 200));
        spawner->spawnedType = row.name;
        spawner->maxAlive = 1;
        logOf([&] { spawner->trigger(player); });
        ASSERT_EQ(spawner->children.size(), 1U);
        EXPECT_TRUE(spawner->children.front()->keptInSaves());
        game.world.destroyBody(spawner->children.front());
        game.world.destroyBody(spawner);
    }
}

}  // namespace
}  // namespace bc
