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

TEST_F(LevelcProgramTest, SaysWhatItCannotDo) {
    EXPECT_EQ(run(""), 2);
    EXPECT_THAT(said_, testing::HasSubstr("levelc ASSETS MAP.tmx LEVEL.xml"));
    EXPECT_EQ(run("--frobnicate x y"), 2);
    EXPECT_EQ(run(assets_ + " " + folder_ + "/none.tmx " + folder_ + "/x.xml"), 1);
    EXPECT_THAT(said_, testing::HasSubstr("none.tmx: cannot be read"));
    EXPECT_EQ(run(folder_ + " " + assets_ + "/maps/hangar.tmx " + folder_ + "/x.xml"), 1);
    EXPECT_THAT(said_, testing::HasSubstr("bodytypes.xml: cannot be read"));
    EXPECT_EQ(run(assets_ + " " + assets_ + "/maps/hangar.tmx " + folder_ + "/no/x.xml"), 1);
    EXPECT_THAT(said_, testing::HasSubstr("cannot be written"));
}

}  // namespace
}  // namespace bc::levelc
