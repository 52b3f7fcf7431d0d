// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "resources/FileSystem.h"
#include "support/TestFolders.h"

#include <gmock/gmock.h>

namespace bc {
namespace {

using testing::Optional;
namespace fs = std::filesystem;

class FileSystemTest : public TestFolders {};

TEST_F(FileSystemTest, OnlyNamesBelowTheFoldersAreSafe) {
    for (const char* name : {"a", "saves/one.xml", "data/..x/y", "a..b", "...", ".hidden", "a//b",
                             "data/adventures/", "\xC3\xA4.png"})
        EXPECT_TRUE(files::isSafeName(name)) << name;
    using namespace std::string_view_literals;
    for (const std::string_view name : {""sv, "/etc/passwd"sv, ".."sv, "../x"sv, "a/../../x"sv,
                                        "a/.."sv, "a\nb"sv, "a\x7F"sv, "a\0b"sv, "\x1B[2J"sv})
        EXPECT_FALSE(files::isSafeName(name)) << name;
}

TEST_F(FileSystemTest, UserFolderLiesOverTheDataFolder) {
    put(data() + "/data/both.txt", "shipped");
    put(data() + "/data/shipped.txt", "only shipped");
    put(user() + "/data/both.txt", "own");
    fs::create_directories(user() + "/data/shipped.txt");  // in nobody's way
    EXPECT_THAT(files::readAll("data/both.txt"), Optional(std::string("own")));
    EXPECT_THAT(files::readAll("data/shipped.txt"), Optional(std::string("only shipped")));
    EXPECT_EQ(files::resolve("data/shipped.txt"), data() + "/data/shipped.txt");
    EXPECT_EQ(files::resolve("data/none.txt"), std::nullopt);
    EXPECT_EQ(files::resolve("data"), std::nullopt) << "a folder is no file";
    EXPECT_EQ(files::resolve("../user/data/both.txt"), std::nullopt);
    EXPECT_FALSE(files::readAll("data/both.txt", 2)) << "larger than asked for";
}

TEST_F(FileSystemTest, WritesGoToTheUserFolderWhoseFoldersAreMade) {
    put(data() + "/data/config.txt", "shipped");
    ASSERT_TRUE(files::replace("data/config.txt", "own"));
    EXPECT_EQ(get(user() + "/data/config.txt"), "own");
    EXPECT_EQ(get(data() + "/data/config.txt"), "shipped");
    EXPECT_TRUE(files::append("logs/deep/times.txt", "one\n"));
    EXPECT_TRUE(files::append("logs/deep/times.txt", "two\n"));
    EXPECT_EQ(get(user() + "/logs/deep/times.txt"), "one\ntwo\n");
}

TEST_F(FileSystemTest, RefusedNamesAreToldOnOneLine) {
    const std::string log = logOf([] { EXPECT_FALSE(files::replace("../a\nb", "x")); });
    EXPECT_EQ(log, "Refused file name: ../a?b\n");
    EXPECT_FALSE(fs::exists(user() + "/../a\nb"));
}

TEST_F(FileSystemTest, FullDiskLeavesTheOldFile) {
    put(user() + "/save.xml", "old");
    bool written = true;
    bool appended = true;
    // The log would not fit either; it goes nowhere meanwhile.
    testing::internal::CaptureStdout();
    {
        const FullDisk full(1000);
        written = files::replace("save.xml", std::string(5000, 'x'));
        appended = files::append("log.txt", std::string(5000, 'x'));
    }
    testing::internal::GetCapturedStdout();
    EXPECT_FALSE(written);
    EXPECT_FALSE(appended);
    EXPECT_EQ(get(user() + "/save.xml"), "old");
    EXPECT_FALSE(fs::exists(user() + "/save.xml.new"));
}

TEST_F(FileSystemTest, LeftoverOfACrashIsInNobodysWay) {
    put(user() + "/save.xml", "old");
    put(user() + "/save.xml.new", "half of something longer");
    EXPECT_TRUE(files::replace("save.xml", "new"));
    EXPECT_EQ(get(user() + "/save.xml"), "new");
    EXPECT_EQ(std::distance(fs::directory_iterator(user()), fs::directory_iterator()), 1)
        << "nothing is left beside it";
}

}  // namespace
}  // namespace bc
