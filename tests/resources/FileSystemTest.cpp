// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "resources/FileSystem.h"
#include "support/TestFolders.h"

#include <gmock/gmock.h>

namespace bc {
namespace {

namespace fs = std::filesystem;

class FileSystemTest : public TestFolders {};

TEST_F(FileSystemTest, OnlyNamesBelowTheFoldersAreSafe) {
    for (const char* name : {"a", "data/..x/y", "a..b", "...", "a//b", "saves/", "\xC3\xA4.png"})
        EXPECT_TRUE(files::isSafeName(name)) << name;
    using namespace std::string_view_literals;
    for (const std::string_view name : {""sv, "/etc/passwd"sv, ".."sv, "../x"sv, "a/../../x"sv,
                                        "a/.."sv, "a\x1F"sv, "a\x7F"sv, "a\0b"sv})
        EXPECT_FALSE(files::isSafeName(name)) << name;
}

TEST_F(FileSystemTest, UserFolderComesBeforeTheDataFolder) {
    put(data() + "/both.txt", "shipped");
    put(data() + "/shipped.txt", "only shipped");
    put(user() + "/both.txt", "own");
    fs::create_directories(user() + "/shipped.txt");
    EXPECT_EQ(files::readAll("both.txt"), "own");
    EXPECT_EQ(files::readAll("both.txt", 3), "own");
    EXPECT_EQ(files::readAll("both.txt", 2), std::nullopt);
    EXPECT_EQ(files::readAll("shipped.txt"), "only shipped") << "a folder does not hide a file";
    for (const char* name : {"none.txt", ".", "../user/both.txt"})
        EXPECT_EQ(files::resolve(name), std::nullopt) << name;
}

TEST_F(FileSystemTest, WritesGoToTheUserFolder) {
    put(data() + "/config.txt", "shipped");
    put(user() + "/config.txt.new", "half of something longer, left by a crash");
    EXPECT_TRUE(files::replace("config.txt", "first"));
    EXPECT_TRUE(files::replace("config.txt", "own"));
    EXPECT_TRUE(files::append("logs/deep/times.txt", "one\n"));
    EXPECT_TRUE(files::append("logs/deep/times.txt", "two\n"));
    EXPECT_EQ(get(user() + "/config.txt") + get(data() + "/config.txt"), "ownshipped");
    EXPECT_EQ(get(user() + "/logs/deep/times.txt"), "one\ntwo\n");
    EXPECT_FALSE(fs::exists(user() + "/config.txt.new"));
    EXPECT_EQ(logOf([] { EXPECT_FALSE(files::replace("../a\nb", "x")); }),
              "Refused file name: ../a?b\n");
    EXPECT_FALSE(fs::exists(user() + "/../a\nb"));
    EXPECT_EQ(logOf([] { EXPECT_FALSE(files::append("config.txt/x", "x")); }),
              "Could not make the folder of config.txt/x: Not a directory\n");
}

TEST_F(FileSystemTest, FullDiskLeavesTheOldFile) {
    put(user() + "/save.xml", "old");
    bool written = true;
    bool appended = true;
    // The log is captured, since it would not fit either.
    logOf([&] {
        const FullDisk full(1000);
        written = files::replace("save.xml", std::string(5000, 'x'));
        appended = files::append("log.txt", std::string(5000, 'x'));
    });
    EXPECT_FALSE(written || appended);
    EXPECT_EQ(get(user() + "/save.xml"), "old");
    EXPECT_FALSE(fs::exists(user() + "/save.xml.new"));
}

}  // namespace
}  // namespace bc
