// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "XmlFile.h"

#include "support/Places.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sys/wait.h>

namespace bc::levelc {
namespace {

/// The program as the build calls it, in a folder of its own.
class LevelcProgramTest : public testing::Test {
  protected:
    void SetUp() override {
        std::string pattern = testing::TempDir() + "levelcXXXXXX";
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        folder_ = pattern;
    }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    int run(const std::string& arguments) {
        const std::string command =
            std::string(LEVELC) + " " + arguments + " 2> " + folder_ + "/said";
        const int status = std::system(command.c_str());
        EXPECT_EQ(readFile(folder_ + "/said", said_), "");
        return WEXITSTATUS(status);
    }

    std::string folder_;
    std::string said_;
    const std::string assets_ = test::sourcePath("assets");
};

TEST_F(LevelcProgramTest, CompilesTheSameLevelEveryTime) {
    const std::string map = assets_ + " " + assets_ + "/maps/hangar.tmx " + folder_;
    ASSERT_EQ(run(map + "/a.xml"), 0) << said_;
    ASSERT_EQ(run(map + "/b.xml"), 0) << said_;
    std::string a;
    std::string b;
    ASSERT_EQ(readFile(folder_ + "/a.xml", a), "");
    ASSERT_EQ(readFile(folder_ + "/b.xml", b), "");
    EXPECT_GT(a.size(), 10000U);
    EXPECT_TRUE(a == b);
}

TEST_F(LevelcProgramTest, AFaultyMapEndsWithOneLineAFaultAndLeavesTheOldLevel) {
    const std::string map = folder_ + "/bad.tmx";
    const std::string level = folder_ + "/bad.xml";
    ASSERT_EQ(replaceFile(level, "old"), "");
    ASSERT_EQ(replaceFile(map, R"(<map orientation="orthogonal" width="9" height="9" tileheight="9">
        <objectgroup><object id="4" name="w" type="wall" width="9" height="9"/></objectgroup></map>)"),
              "");
    EXPECT_EQ(run(assets_ + " " + map + " " + level), 1);
    EXPECT_EQ(said_, map + ": object 4 \"w\": unknown type wall\n" + map +
                         ": has no start point, a spawnpoint with startpoint set\n");
    std::string text;
    ASSERT_EQ(readFile(level, text), "");
    EXPECT_EQ(text, "old");
    EXPECT_FALSE(std::filesystem::exists(level + ".new"));
}

/// A player's level, beside an installed game and pictures of the player's own.
TEST_F(LevelcProgramTest, CompilesForAnInstalledGame) {
    const auto write = [&](const std::string& name, const std::string& text) {
        std::filesystem::create_directories(
            std::filesystem::path(folder_ + '/' + name).parent_path());
        ASSERT_EQ(replaceFile(folder_ + '/' + name, text), "");
    };
    write("game/data/gamevars.xml", "<vars/>");
    write("game/data/images/rock.png", "");
    write("user/data/images/mine.png", "");
    write("user/maps/other.xml",
          "<Level><Objects><P type='spawnpoint' idname='east'/></Objects></Level>");
    const auto map = [](const std::string& picture, const std::string& spawn) {
        return R"(<map orientation="orthogonal" width="99" height="99" tileheight="9"><objectgroup>
            <object id="1" name="s" type="spawnpoint" x="50" y="50"><properties>
            <property name="startpoint" type="bool" value="true"/></properties><point/></object>
            <object id="2" name="w" type="default" width="9" height="9"><properties>
            <property name="texture" value=")" +
               picture + R"("/></properties></object>
            <object id="3" name="x" type="levelchange" x="80" y="50"><properties>
            <property name="texture" value="data/images/rock.png"/>
            <property name="leveltarget" value="other"/>
            <property name="targetspawn" value=")" +
               spawn + R"("/></properties><point/></object></objectgroup></map>)";
    };
    const std::string call = "--game " + folder_ + "/game --user " + folder_ + "/user " + folder_ +
                             "/mine.tmx " + folder_ + "/user/maps";
    write("mine.tmx", map("data/images/mine.png", "east"));
    EXPECT_EQ(run(call), 0) << said_;
    EXPECT_TRUE(std::filesystem::exists(folder_ + "/user/maps/mine.xml"));
    write("mine.tmx", map("data/images/none.png", "west"));
    EXPECT_EQ(run(call), 1);
    EXPECT_THAT(said_, testing::HasSubstr("there is no picture data/images/none.png"));
    EXPECT_THAT(said_, testing::HasSubstr("the map other has no spawn point west"));
}

TEST_F(LevelcProgramTest, SaysWhatItCannotDo) {
    EXPECT_EQ(run(""), 2);
    EXPECT_THAT(said_, testing::HasSubstr("levelc ASSETS MAP.tmx LEVEL"));
    EXPECT_EQ(run("--frobnicate x y"), 2);
    EXPECT_THAT(said_, testing::HasSubstr("unknown option --frobnicate"));
    EXPECT_EQ(run("--game"), 2);
    EXPECT_EQ(run("--game " + folder_ + " a.tmx b.xml"), 1);
    EXPECT_THAT(said_, testing::HasSubstr("holds no game"));
    EXPECT_EQ(run(assets_ + " " + folder_ + "/none.tmx " + folder_ + "/x.xml"), 1);
    EXPECT_THAT(said_, testing::HasSubstr("none.tmx: cannot be read"));
    EXPECT_EQ(run(folder_ + " " + assets_ + "/maps/hangar.tmx " + folder_ + "/x.xml"), 1);
    EXPECT_THAT(said_, testing::HasSubstr("holds no sources"));
    EXPECT_EQ(run(assets_ + " " + assets_ + "/maps/hangar.tmx " + folder_ + "/no/x.xml"), 1);
    EXPECT_THAT(said_, testing::HasSubstr("cannot be written"));
}

}  // namespace
}  // namespace bc::levelc
