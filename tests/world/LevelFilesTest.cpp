// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Levels and saved bodies read, placed and written.
#include "support/TestFolders.h"
#include "world/BodyFactory.h"
#include "world/LevelFormat.h"
#include "world/LevelLoader.h"
#include "world/World.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <cmath>

namespace bc {
namespace {

class LevelFilesTest : public TestFolders {
  protected:
    LevelFilesTest() { factory.registerDefaults(); }
    std::string load(const std::string& objects) {
        put(data() + "/maps/l.xml", "<level><Objects>" + objects + "</Objects></level>");
        std::optional<LevelBodies> bodies;
        std::string log = logOf([&] { bodies = readLevel(factory, "l"); });
        if (bodies)
            log += logOf([&] { insertBodies(world, std::move(*bodies), false); });
        else
            log += "(refused)";
        return log;
    }
    static std::string box(const std::string& x, const char* params, const char* name = "b") {
        return "<P type='default' idname='" + std::string(name) + "'><params " + params +
               "/><verts><v origin='" + x + ",0' colour='1,2,3,4' texcoords='0,0'/><v origin='" +
               x + ",10'/><v origin='9,10'/><v origin='9,0'/></verts></P>";
    }
    BodyFactory factory;
    World world;
};

TEST_F(LevelFilesTest, ReadsWhatAnObjectSays) {
    load(
        "<P type='default' idname='slab'><params solid='true' outlined='false' mass='2' "
        "texture='t.png' z-shift='-3' textured='true' visible='true' outlinecolour='9,8,7,6'/>"
        "<verts><v origin='0,0' colour='1,2,3,4' texcoords='0.5,0.25'/><v origin='20,0,5'/>"
        "<v origin='20,10'/><v origin='0,10'/></verts>"
        "<attributes><a name='Glow' value='true'/><a name='note' value='x'/></attributes></P>");
    ASSERT_EQ(world.allBodies().size(), 1U);
    const Body& slab = *world.allBodies()[0];
    EXPECT_EQ(slab.id, "slab");
    EXPECT_TRUE(slab.solid && !slab.outlined && slab.textured && slab.hasGlow && slab.placed);
    EXPECT_FLOAT_EQ(slab.mass, 2);
    EXPECT_FLOAT_EQ(slab.invMass, 0.5F);
    EXPECT_FLOAT_EQ(slab.zShift, -3);
    EXPECT_FLOAT_EQ(slab.pos.x, 10);
    EXPECT_FLOAT_EQ(slab.pos.y, 5);
    EXPECT_FLOAT_EQ(slab.localVertices[0].x, -10);
    EXPECT_EQ(slab.outlinecolour, RGBAColour(9, 8, 7, 6));
    EXPECT_EQ(slab.customAttributes.at("note"), "x");
    EXPECT_EQ(world.activeBodies().size(), 1U);
}

TEST_F(LevelFilesTest, TargetsResolveInLevelOrderAndEntitiesAreNumbered) {
    load(box("0", "entity='true' targets='a,,b,nobody'", "first") + box("0", "", "b") +
         box("0", "entity='true'", "a") + box("0", "mass='1e-08'", "a"));
    const auto& all = world.allBodies();
    ASSERT_EQ(all.size(), 4U);
    EXPECT_EQ(all[0]->targetBodies, (std::vector<Body*>{all[2], all[3], all[1]}));
    EXPECT_EQ(all[0]->autoid, 2);
    EXPECT_EQ(all[1]->autoid, 0);
    EXPECT_EQ(all[2]->autoid, 3);
    EXPECT_EQ(world.nextBodyId(), 4);
    EXPECT_FLOAT_EQ(all[3]->mass, 0);
    EXPECT_FLOAT_EQ(all[3]->invMass, 0);
}

TEST_F(LevelFilesTest, OddBodiesDoNoHarm) {
    const std::string log = load(
        "<P type='nosuch' idname='x'/>"
        "<P type='default'><verts><v origin='5,5'/></verts></P>"
        "<P type='default'><verts/><verts><v/><v origin='bad'/></verts></P>" +
        box("1e30", "") + box("nan", "") + box("inf", "mass='nan'") + box("2", "solid='true'"));
    EXPECT_NE(log.find("Defaulting to Body for: nosuch"), std::string::npos);
    for (const Body* body : world.allBodies()) {
        EXPECT_TRUE(std::isfinite(body->pos.x) && std::fabs(body->pos.x) <= Body::maxCoordinate);
        for (const Vector& corner : body->worldVertices())
            EXPECT_LE(std::fabs(corner.x), Body::maxCoordinate);
    }
    // No numbers at all are zeros; only what is no place is refused, with its body.
    EXPECT_EQ(load(box("junk", "")).find("Refused"), std::string::npos);
    for (const char* x : {"nan", "-inf", "1e99"})
        EXPECT_NE(load(box(x, "")).find("Refused body b"), std::string::npos) << x;
    world.simulate(0.025F, -60);
    std::string many;
    for (int i = 0; i < 200; ++i)
        many += "<v origin='" + std::to_string(i) + ",1'/>";
    world.clear();
    load("<P type='default'><verts>" + many + "</verts></P>");
    EXPECT_TRUE(world.allBodies().empty()) << "more corners than a body may have";
}

TEST_F(LevelFilesTest, UnreadableLevelsAreRefused) {
    for (const char* text : {"", "<level>", "no xml", "<level><Objects></level>"}) {
        put(data() + "/maps/bad.xml", text);
        std::optional<LevelBodies> bodies;
        const std::string log = logOf([&] { bodies = readLevel(factory, "bad.xml"); });
        EXPECT_FALSE(bodies) << text;
        EXPECT_NE(log.find("Could not load level file: maps/bad.xml"), std::string::npos) << text;
    }
}

TEST_F(LevelFilesTest, AWrittenBodyReadsBackTheSame) {
    load(box("0", "entity='true' solid='true' mass='4' targets='q' texrotate='1.5'"));
    Body& body = *world.allBodies()[0];
    body.vel.set(12.5F, -3);
    body.constantvelocity.set(1, 2);
    body.gravitymultiplier = 0.25F;
    body.inliquid = true;
    body.setTexture("data/images/x.png");
    TiXmlElement root("save");
    saveEntities(world, root);
    LevelBodies read;
    ASSERT_TRUE(readSavedBodies(factory, root, "save", read));
    ASSERT_EQ(read.size(), 1U);
    TiXmlElement before("x");
    TiXmlElement after("x");
    levelformat::writeBody(body, before);
    levelformat::writeBody(*read[0], after);
    TiXmlPrinter a;
    TiXmlPrinter b;
    before.Accept(&a);
    after.Accept(&b);
    EXPECT_STREQ(a.CStr(), b.CStr());
    EXPECT_EQ(read[0]->autoid, body.autoid);
}

TEST_F(LevelFilesTest, AStateWithoutGravityFloats) {
    Body body;
    TiXmlElement state("custom");
    state.SetAttribute("pos", "3,4");
    body.vel.set(7, 7);
    body.loadState(state);
    EXPECT_FLOAT_EQ(body.gravitymultiplier, 0);
    EXPECT_FLOAT_EQ(body.pos.x, 3);
    EXPECT_FLOAT_EQ(body.vel.x, 7) << "what is missing stays";
}

}  // namespace
}  // namespace bc
