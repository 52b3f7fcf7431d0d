// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/Options.h"

#include <gtest/gtest.h>

namespace bc {
namespace {

std::optional<Options> parse(const std::vector<std::string>& args) {
    std::string error;
    return parseOptions(args, error);
}

TEST(Options, CommandsTakeTheWordsBehindThem) {
    const auto o = parse({"--seed", "7", "+map", "hangar", "+give", "all", "+set", "gravity", "-5",
                          "--frames=40", "+playerinfo"});
    ASSERT_TRUE(o);
    EXPECT_EQ(o->commands,
              (std::vector<std::string>{"map hangar", "give all", "set gravity -5", "playerinfo"}));
    EXPECT_EQ(o->seed, 7U);
    EXPECT_EQ(o->frames, 40U);
    EXPECT_EQ(o->frameMs, 25U);
}

TEST(Options, HeadlessRunsOnTheVirtualClockWithoutLogo) {
    const auto o = parse({"--headless", "--frame-ms", "16"});
    ASSERT_TRUE(o);
    EXPECT_TRUE(o->headless && o->virtualClock && o->skipLogo);
    EXPECT_EQ(o->frameMs, 16U);
    EXPECT_FALSE(parse({})->virtualClock);
}

TEST(Options, WindowSizes) {
    const auto o = parse({"--window", "1280x960"});
    ASSERT_TRUE(o);
    EXPECT_EQ(o->width, 1280);
    EXPECT_EQ(o->height, 960);
    for (const char* bad : {"1280", "x", "12x9", "1280x960x2", "-5x100", "99999x960", ""})
        EXPECT_FALSE(parse({"--window", bad})) << bad;
}

TEST(Options, MistakesAreNamed) {
    const std::vector<std::vector<std::string>> mistakes = {
        {"--nonsense"},        {"stray"},
        {"--frames"},          {"--frames", "ten"},
        {"--frames", "-1"},    {"--frame-ms", "0"},
        {"--headless=yes"},    {"--seed", "4294967296"},
        {"--script", ""},      {"+"},
        {"+map", "x", "--bad"}};
    for (const auto& args : mistakes) {
        std::string error;
        EXPECT_FALSE(parseOptions(args, error)) << args[0];
        EXPECT_FALSE(error.empty());
        EXPECT_EQ(error.find('\n'), std::string::npos);
    }
}

}  // namespace
}  // namespace bc
