// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/FrameScript.h"

#include <gtest/gtest.h>

namespace bc {
namespace {

TEST(FrameScript, RunsDueLinesInFileOrderOnce) {
    FrameScript script;
    std::string error;
    ASSERT_TRUE(
        script.parse("# a comment\n"
                     "5 second # not this\n"
                     "0 first\r\n"
                     "\n"
                     "5\t@key A\n"
                     "9 last",
                     error))
        << error;
    std::vector<std::string> ran;
    const auto note = [&](const std::string& line) { ran.push_back(line); };
    script.runDue(0, note);
    EXPECT_EQ(ran, std::vector<std::string>{"first"});
    script.runDue(4, note);
    EXPECT_EQ(ran.size(), 1U);
    script.runDue(7, note);
    EXPECT_EQ(ran, (std::vector<std::string>{"first", "second", "@key A"}));
    script.runDue(100, note);
    script.runDue(101, note);
    EXPECT_EQ(ran.size(), 4U);
}

TEST(FrameScript, ABadLineIsNamedAndNothingRuns) {
    for (const char* text : {"0 good\nbad line\n", "0 good\n12\n", "0 good\n12x y\n",
                             "0 good\n-1 y\n", "0 good\n99999999999 y\n"}) {
        FrameScript script;
        std::string error;
        EXPECT_FALSE(script.parse(text, error)) << text;
        EXPECT_NE(error.find("line 2"), std::string::npos) << error;
        script.runDue(1000, [](const std::string&) { FAIL(); });
    }
}

}  // namespace
}  // namespace bc
