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
    static std::vector<std::string> list(const std::string& pattern, const std::string& folder) {
        std::vector<FileOps::FileSystemNode> nodes;
        nodes.push_back({false, "kept"});
        FileOps::getDirContents(pattern, folder, nodes);
        std::vector<std::string> names;
        names.reserve(nodes.size());
        for (const FileOps::FileSystemNode& node : nodes)
            names.push_back(node.name);
        return names;
    }
};

TEST_F(FileOpsTest, ListsBothFoldersSortedAndWithoutDoubles) {
    put(user() + "/saves/b.xml", "");
    put(user() + "/saves/a.xml", "");
    put(user() + "/saves/a.png", "");
    put(data() + "/saves/b.xml", "");
    put(data() + "/saves/0.xml", "");
    std::filesystem::create_directories(user() + "/saves/folder.xml");
    EXPECT_THAT(list("*.xml", "saves"), ElementsAre("kept", "0.xml", "a.xml", "b.xml"));
}

TEST_F(FileOpsTest, PatternStandsRightBehindAFolderWithASlash) {
    put(data() + "/data/adventures/one.xml", "");
    put(data() + "/data/adventures2.xml", "");
    EXPECT_THAT(list("*.xml", "data/adventures/"), ElementsAre("kept", "one.xml"));
    EXPECT_THAT(list("*.xml", "data/adventures"), ElementsAre("kept", "adventures2.xml"));
}

TEST_F(FileOpsTest, NothingToListIsToldAndLeavesTheList) {
    std::filesystem::create_directories(user() + "/saves");
    put(user() + "/secret.xml", "");
    for (const char* folder : {"saves", "nowhere", "saves/../", "/", ""}) {
        const std::string log =
            logOf([&] { EXPECT_THAT(list("*.xml", folder), ElementsAre("kept")) << folder; });
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
          Case{"*a*b*", "xxaxbxbx", true}, Case{"*a*b", "aab", true}, Case{"*a*b", "ba", false},
          Case{"**", "", true}, Case{"", "", true}, Case{"", "a", false}, Case{"a", "", false}})
        EXPECT_EQ(matchesWildcard(c.pattern, c.name), c.matches) << c.pattern << ' ' << c.name;
}

TEST(FileFinder, ManyStarsTakeNoTimeToSpeakOf) {
    std::string stars;
    for (int i = 0; i < 100; ++i)
        stars += "*a";
    EXPECT_FALSE(matchesWildcard(stars + "b", std::string(5000, 'a')));
}

}  // namespace
}  // namespace bc
