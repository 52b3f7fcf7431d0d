// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Whole runs with a real window: real keys, pictures, the video mode.
#include "RunGame.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <future>

namespace bc {
namespace {

namespace fs = std::filesystem;

/// Runs a shell command; its status.
int shell(const std::string& command) {
    return std::system(command.c_str());
}

/// Horizontal speed of the player in a world dump, 0 while there is none.
float playerSpeed(const std::string& dump) {
    TiXmlDocument document;
    document.Parse(dump.c_str());
    if (document.Error() || document.RootElement() == nullptr)
        return 0;
    const TiXmlElement* objects = document.RootElement()->FirstChildElement("Objects");
    if (objects == nullptr)
        return 0;
    for (const auto* p = objects->FirstChildElement(); p != nullptr; p = p->NextSiblingElement()) {
        const TiXmlElement* state = p->FirstChildElement("custom");
        if (state != nullptr && std::string(p->Attribute("type")) == "player")
            return std::stof(state->Attribute("vel"));
    }
    return 0;
}

/// Width, height, and the middle brightness (0 to 1) of a PNG.
std::array<double, 3> measure(const fs::path& picture) {
    std::array<double, 3> values{};
    const std::string command =
        "convert '" + picture.string() + "' -format '%w %h %[fx:mean]' info:";
    if (std::FILE* pipe = popen(command.c_str(), "r")) {
        if (std::fscanf(pipe, "%lf %lf %lf", &values[0], &values[1], &values[2]) != 3)
            values = {};
        pclose(pipe);
    }
    return values;
}

TEST(ProgramDisplay, TheCraftFliesWithRealKeys) {
    RunGame game;
    auto run = std::async(std::launch::async, [&game] {
        return game.run({"--seed", "1", "--no-logo", "--window", "640x480", "+map", "hangar",
                         "+bind", "f6", "dumpworld", "+bind", "f7", "quit"});
    });
    ASSERT_EQ(shell("timeout 60 xdotool search --sync --name Brightclash >/dev/null 2>&1"), 0);
    ASSERT_EQ(shell("xdotool mousemove 320 240 keydown d"), 0);
    // Each round presses the key that dumps; the craft gathers speed meanwhile.
    float speed = 0;
    for (int round = 0; round < 200 && speed < 50; ++round) {
        shell("xdotool keydown --delay 60 F6 keyup --delay 60 F6");
        speed = playerSpeed(game.read("worlddump.xml"));
    }
    EXPECT_GE(speed, 50);
    shell("xdotool keyup d");
    for (int round = 0;
         round < 100 && run.wait_for(std::chrono::milliseconds(100)) != std::future_status::ready;
         ++round)
        shell("xdotool keydown --delay 60 F7 keyup --delay 60 F7");
    ASSERT_EQ(run.wait_for(std::chrono::seconds(20)), std::future_status::ready);
    EXPECT_EQ(run.get(), 0) << game.standardError();
    EXPECT_TRUE(game.has("data/config.txt"));
}

TEST(ProgramDisplay, PicturesModesAndTheLogo) {
    RunGame game;
    game.script(
        "1 screenshot\n3 set vidwidth 800; set vidheight 600; vidrestart\n6 screenshot\n"
        "7 @key `\n9 screenshot\n10 savegame shot\n");
    ASSERT_EQ(game.run({"--seed", "1", "--virtual-clock", "--no-logo", "--window", "1024x768",
                        "--frames", "13", "+map", "hangar"}),
              0)
        << game.standardError();
    const auto first = measure(game.folder() / "screenshots/screenshot0000.png");
    EXPECT_EQ(first[0], 1024);
    EXPECT_EQ(first[1], 768);
    EXPECT_GT(first[2], 0.03) << "the hangar is dark, not black";
    EXPECT_LT(first[2], 0.5);
    const auto second = measure(game.folder() / "screenshots/screenshot0001.png");
    EXPECT_EQ(second[0], 800);
    EXPECT_EQ(second[1], 600);
    EXPECT_NEAR(second[2], first[2], 0.1) << "textures came back after the change";
    EXPECT_LT(measure(game.folder() / "screenshots/screenshot0002.png")[2], second[2])
        << "the console covers the upper half in black";
    const auto thumbnail = measure(game.folder() / "saves/shot.png");
    EXPECT_EQ(thumbnail[0], 320);
    EXPECT_EQ(thumbnail[1], 240);
    EXPECT_EQ(game.log().find("FAILED to load texture"), std::string::npos);
    EXPECT_EQ(game.log().find("NULL CHARACTER DESCRIPTOR"), std::string::npos);
}

TEST(ProgramDisplay, RunsOverTheNewerLibraryToo) {
    constexpr const char* compat = "/usr/lib/x86_64-linux-gnu/sdl12-compat";
    ASSERT_TRUE(fs::exists(compat)) << "packages.txt names it";
    setenv("LD_LIBRARY_PATH", compat, 1);
    RunGame game;
    game.script("2 screenshot\n");
    EXPECT_EQ(game.run({"--seed", "1", "--virtual-clock", "--frames", "5", "--no-logo", "+map",
                        "hangar"}),
              0)
        << game.standardError();
    unsetenv("LD_LIBRARY_PATH");
    EXPECT_GT(measure(game.folder() / "screenshots/screenshot0000.png")[2], 0.03);
}

}  // namespace
}  // namespace bc
