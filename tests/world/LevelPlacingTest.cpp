// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// What happens when read bodies are placed, saved and dumped, and what it tells.
#include "support/ConsoleFixture.h"
#include "world/BodyFactory.h"
#include "world/BodyFields.h"
#include "world/LevelLoader.h"
#include "world/World.h"
#include "world/WorldDump.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <string>
#include <vector>

namespace bc {
namespace {

std::vector<std::string> hooks;

/// Notes its hooks; a type that brings its own shape.
class Hooked final : public Body {
  public:
    Hooked() {
        type = "hooked";
        usesDefaultShape = true;
        defaultWidth = 30;
        normalisedTexCoords = true;
    }
    [[nodiscard]] std::unique_ptr<Body> create() const override {
        return std::make_unique<Hooked>();
    }
    [[nodiscard]] bool keptInSaves() const override { return entity && id != "craft"; }
    void onBeforeTargets() override { note("before"); }
    void onLoaded() override { note("loaded"); }
    void onRestored() override { note("restored"); }
    void onSpawned() override { note("spawned"); }
    void onAfterLoad() override { note("after"); }
    void fields(BodyFields& f) override {
        Body::fields(f);
        f.shown("mood", std::string("calm"));
    }

  private:
    void note(const char* hook) {
        hooks.push_back(id + ' ' + hook + ' ' + std::to_string(targetBodies.size()));
    }
};

class LevelPlacingTest : public ConsoleFixture {
  protected:
    LevelPlacingTest() {
        game.registerDefaults();
        rules.registerPrototype(std::make_unique<Hooked>());
        game.setFallback(&rules);
        hooks.clear();
    }
    void level(const std::string& objects) {
        put(data() + "/maps/sub/l.xml", "<level><Objects>" + objects + "</Objects></level>");
    }
    static std::string object(const std::string& type, const std::string& name,
                              const std::string& params, const std::string& rest = {}) {
        return "<P type='" + type + "' idname='" + name + "'><params " + params +
               "/><verts><v origin='-8,-8' texcoords='2,5'/><v origin='8,-8' texcoords='3,5'/>"
               "<v origin='8,8' texcoords='3,7'/></verts>" +
               rest + "</P>";
    }
    BodyFactory game;
    BodyFactory rules;
    World world;
};

TEST_F(LevelPlacingTest, TellsOnTheConsoleAndDumpsOnRequest) {
    level(object("default", "one", "") + object("default", "two", ""));
    vars().createOrSet("load_leveldebug", "1", "");
    std::string log = logOf([&] { EXPECT_TRUE(loadLevel(world, game, "sub/l.xml")); });
    EXPECT_EQ(lines, std::vector<std::string>{"Loaded successfuly: maps/sub/l.xml"});
    const std::string rule(21, '=');
    const std::string found = "Found on disk: maps/sub/l.xml\n";
    EXPECT_EQ(log, found + rule + '\n' + world.allBodies()[0]->describe() + '\n' + rule + '\n' +
                       rule + '\n' + world.allBodies()[1]->describe() + '\n' + rule + '\n');
    world.clear();
    lines.clear();
    vars().setVar("load_leveldebug", "2");
    EXPECT_EQ(logOf([&] { EXPECT_TRUE(loadLevel(world, game, "sub/l")); }), found);
    EXPECT_EQ(world.allBodies().size(), 2U);
    lines.clear();
    log = logOf([&] { EXPECT_FALSE(loadLevel(world, game, "sub/none")); });
    EXPECT_EQ(lines, std::vector<std::string>{"Failed to load: maps/sub/none.xml"});
    EXPECT_NE(log.find("Could not load level file: maps/sub/none.xml\n"), std::string::npos);
    EXPECT_EQ(world.allBodies().size(), 2U) << "the running level stays";
}

TEST_F(LevelPlacingTest, CallsTheHooksInOrderOnceAllAreThere) {
    level(object("hooked", "a", "targets='b'") + object("hooked", "b", ""));
    logOf([&] { loadLevel(world, game, "sub/l"); });
    EXPECT_EQ(hooks,
              (std::vector<std::string>{"a before 0", "a loaded 1", "a spawned 1", "a after 1",
                                        "b before 0", "b loaded 0", "b spawned 0", "b after 0"}));
    const Body& a = *world.allBodies()[0];
    EXPECT_EQ(a.type, "hooked");
    EXPECT_EQ(a.localVertices.size(), 4U) << "its own shape, around the polygon's centre";
    EXPECT_FLOAT_EQ(a.localVertices[2].x, 15);
    EXPECT_NEAR(a.pos.x, 8.0 / 3, 1e-4);
    EXPECT_EQ(a.texCoords[0], TexCoord(0, 0));
}

TEST_F(LevelPlacingTest, AnIndexCoversTheLevelWithAMargin) {
    level(object("default", "a", "") +
          "<P type='default'><verts><v origin='1000,0'/><v origin='1010,0'/>"
          "<v origin='1010,40'/></verts></P><P type='default' idname='empty'/>");
    const std::string log = logOf([&] { loadLevel(world, game, "sub/l"); });
    EXPECT_EQ(log.find("insertion failed"), std::string::npos);
    EXPECT_FLOAT_EQ(world.quadtree().size(), 1018 + 16);
    EXPECT_FLOAT_EQ(world.quadtree().centre().x, 501);
    EXPECT_FLOAT_EQ(world.quadtree().centre().y, 16);
    EXPECT_EQ(world.quadtree().nodeCount(), 21);
    world.clear();
    level("");
    logOf([&] { EXPECT_TRUE(loadLevel(world, game, "sub/l")); });
    EXPECT_FLOAT_EQ(world.quadtree().size(), 16);
}

TEST_F(LevelPlacingTest, ASaveTakesEntitiesFromItselfAndTheRestFromTheLevel) {
    level(object("default", "wall", "") + object("hooked", "enemy", "entity='true'") +
          object("hooked", "craft", "entity='true'"));
    logOf([&] { loadLevel(world, game, "sub/l"); });
    Body& enemy = *world.allBodies()[1];
    enemy.autoid = 40;
    enemy.setPosition(Vector(500, 60));
    enemy.updateGeometry();
    enemy.vel.set(7, 8);
    TiXmlElement save("save");
    saveEntities(world, save);
    world.clear();
    world.setNextBodyId(90);
    hooks.clear();
    std::optional<LevelBodies> bodies;
    logOf([&] { bodies = readLevel(game, "sub/l", true); });
    ASSERT_TRUE(bodies);
    EXPECT_EQ(bodies->size(), 1U);
    ASSERT_TRUE(readSavedBodies(game, save, "save", *bodies));
    insertBodies(world, std::move(*bodies), true);
    ASSERT_EQ(world.allBodies().size(), 2U);
    const Body& restored = *world.allBodies()[1];
    EXPECT_EQ(restored.autoid, 40);
    EXPECT_EQ(world.nextBodyId(), 90);
    EXPECT_FLOAT_EQ(restored.pos.x, 500);
    EXPECT_FLOAT_EQ(restored.worldBox().minX, 485);
    EXPECT_FLOAT_EQ(restored.bounds.maxX, 515);
    EXPECT_FLOAT_EQ(restored.vel.y, 8);
    EXPECT_EQ(hooks[2], "enemy restored 0");
    EXPECT_FALSE(readSavedBodies(game, TiXmlElement("save"), "save", *bodies));
}

TEST_F(LevelPlacingTest, CountsAreBounded) {
    std::string names;
    std::string objects;
    for (int i = 0; i < 60; ++i) {
        names += "x,";
        objects += "<P type='default' idname='x'/>";
    }
    level(object("default", "greedy", "targets='" + names + "'") + objects);
    const std::string log = logOf([&] { loadLevel(world, game, "sub/l"); });
    EXPECT_EQ(world.allBodies()[0]->targetBodies.size(), 1024U);
    EXPECT_NE(log.find("Too many targets of greedy"), std::string::npos);
    world.clear();
    objects.clear();
    for (int i = 0; i < 20010; ++i)
        objects += "<P/>";
    level(objects);
    LevelBodies read;
    const std::string refused = logOf([&] {
        if (auto bodies = readLevel(game, "sub/l"))
            read = std::move(*bodies);
    });
    EXPECT_EQ(read.size(), 20000U);
    EXPECT_NE(refused.find("Refused the bodies beyond 20000"), std::string::npos);
}

TEST_F(LevelPlacingTest, ADumpHoldsEveryBodyAndWhatItKeeps) {
    level(object("default", "wall", "mass='0'",
                 "<attributes><a name='note' value='&lt;x&gt;'/></attributes>") +
          object("hooked", "enemy", "entity='true' targets='wall'"));
    logOf([&] { loadLevel(world, game, "sub/l"); });
    TiXmlElement dump("World");
    dumpBodies(world, dump);
    const TiXmlElement* wall = dump.FirstChildElement("Objects")->FirstChildElement("P");
    EXPECT_STREQ(wall->Attribute("autoid"), "0");
    EXPECT_STREQ(wall->FirstChildElement("params")->Attribute("mass"), "0.000000");
    EXPECT_STREQ(wall->FirstChildElement("attributes")->FirstChildElement("a")->Attribute("value"),
                 "<x>");
    EXPECT_STREQ(wall->FirstChildElement("debug")->Attribute("massive"), "false");
    const TiXmlElement* enemy = wall->NextSiblingElement();
    EXPECT_STREQ(enemy->Attribute("autoid"), "2");
    EXPECT_STREQ(enemy->FirstChildElement("verts")->FirstChildElement()->Attribute("texcoords"),
                 "0,0");
    const TiXmlElement* debug = enemy->FirstChildElement("debug");
    EXPECT_STREQ(debug->Attribute("mood"), "calm");
    EXPECT_STREQ(debug->Attribute("resolvedtargets"), "0:wall");
    EXPECT_STREQ(debug->Attribute("nodedepth"), "0");
    EXPECT_EQ(enemy->NextSiblingElement(), nullptr);
}

}  // namespace
}  // namespace bc
