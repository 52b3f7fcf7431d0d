// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "TestFolders.h"

#include "resources/FileSystem.h"

#include <gmock/gmock.h>

#include <csignal>
#include <sys/resource.h>

namespace bc {
namespace {

using testing::HasSubstr;
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

TEST_F(FileSystemTest, ReplacedFileIsTheOldOneOrTheNewOneWhole) {
    put(user() + "/save.xml", "old");
    // At the moment of writing the old file stands untouched.
    ASSERT_TRUE(files::replaceBy("save.xml", [&](const std::string& beside) {
        EXPECT_NE(beside, user() + "/save.xml");
        put(beside, "new, half");
        EXPECT_EQ(get(user() + "/save.xml"), "old");
        put(beside, "new, whole");
        return true;
    }));
    EXPECT_EQ(get(user() + "/save.xml"), "new, whole");

    const std::string log = logOf([&] {
        EXPECT_FALSE(files::replaceBy("save.xml", [](const std::string& beside) {
            put(beside, "broken");
            return false;
        }));
        EXPECT_FALSE(files::replaceBy("save.xml", [](const std::string&) { return true; }))
            << "a writer that wrote nothing";
    });
    EXPECT_THAT(log, HasSubstr("Could not write save.xml"));
    EXPECT_EQ(get(user() + "/save.xml"), "new, whole");
    EXPECT_EQ(std::distance(fs::directory_iterator(user()), fs::directory_iterator()), 1)
        << "nothing is left beside it";
}

TEST_F(FileSystemTest, FullDiskLeavesTheOldFile) {
    put(user() + "/save.xml", "old");
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit small = before;
    small.rlim_cur = 1000;
    bool written = true;
    bool appended = true;
    // The log would not fit either; it goes nowhere meanwhile.
    testing::internal::CaptureStdout();
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    written = files::replace("save.xml", std::string(5000, 'x'));
    appended = files::append("log.txt", std::string(5000, 'x'));
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    testing::internal::GetCapturedStdout();
    EXPECT_FALSE(written);
    EXPECT_FALSE(appended);
    EXPECT_EQ(get(user() + "/save.xml"), "old");
    EXPECT_FALSE(fs::exists(user() + "/save.xml.new"));
}

TEST_F(FileSystemTest, LeftoverOfACrashIsInNobodysWay) {
    put(user() + "/save.xml.new", "half of something");
    EXPECT_TRUE(files::replaceBy("save.xml", [](const std::string& beside) {
        EXPECT_FALSE(fs::exists(beside)) << "a library may refuse to overwrite";
        put(beside, "new");
        return true;
    }));
    EXPECT_EQ(get(user() + "/save.xml"), "new");
    EXPECT_FALSE(fs::exists(user() + "/save.xml.new"));
}

}  // namespace
}  // namespace bc
