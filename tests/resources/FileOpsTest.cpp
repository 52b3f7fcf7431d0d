// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "resources/FileFinder.h"
#include "resources/FileOps.h"
#include "support/TestFolders.h"

#include <gmock/gmock.h>

namespace bc {
namespace {

using testing::ElementsAre;

class FileOpsTest : public TestFolders {
  protected:
    /// The names after *.xml of the folder was appended to a list that holds one.
    static std::vector<std::string> list(const std::string& folder) {
        std::vector<FileOps::FileSystemNode> nodes = {{false, "kept"}};
        FileOps::getDirContents("*.xml", folder, nodes);
        std::vector<std::string> names;
        for (const FileOps::FileSystemNode& node : nodes)
            names.push_back(node.name);
        return names;
    }
};

TEST_F(FileOpsTest, ListsTheFilesOfBothFoldersOnceAndSorted) {
    for (const char* name : {"b.xml", "a.xml", "a.png", "folder.xml/x", "sub/one.xml"})
        put(user() + "/saves/" + name, "");
    for (const char* name : {"b.xml", "0.xml", "sub2.xml"})
        put(data() + "/saves/" + name, "");
    EXPECT_THAT(list("saves"), ElementsAre("kept", "0.xml", "a.xml", "b.xml", "sub2.xml"));
    EXPECT_THAT(list("saves/sub/"), ElementsAre("kept", "one.xml"));
    EXPECT_THAT(list("saves/sub"), ElementsAre("kept", "sub2.xml")) << "completes the last part";
}

TEST_F(FileOpsTest, ListsNothingWithALogLineWhenNothingMatches) {
    std::filesystem::create_directories(user() + "/saves");
    put(user() + "/secret.xml", "");
    for (const char* folder : {"saves", "nowhere", "saves/../", "/", ""}) {
        const std::string log =
            logOf([&] { EXPECT_THAT(list(folder), ElementsAre("kept")) << folder; });
        EXPECT_EQ(log, "getDirContents error\n") << folder;
    }
}

TEST(FileFinder, WildcardsMatchWholeNames) {
    struct Case {
        const char* pattern;
        const char* name;
        bool matches;
    };
    for (const Case& c :
         {Case{"*.xml", "a.xml", true}, Case{"*.xml", ".xml", true},
          Case{"*.xml", "a.xml.new", false}, Case{"*.xml", "a.XML", false},
          Case{"save00?.xml", "save001.xml", true}, Case{"save00?.xml", "save00.xml", false},
          Case{"*a*b", "aab", true}, Case{"ab*ba", "aba", false}, Case{"**", "", true},
          Case{"", "a", false}, Case{"a", "", false}})
        EXPECT_EQ(matchesWildcard(c.pattern, c.name), c.matches) << c.pattern << ' ' << c.name;
    std::string stars = "b";
    for (int i = 0; i < 100; ++i)
        stars.insert(0, "*a");
    EXPECT_FALSE(matchesWildcard(stars, std::string(5000, 'a'))) << "after a bounded search";
}

}  // namespace
}  // namespace bc
