// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Whole runs with a real window: real keys, pictures, the video mode.
#include "RunGame.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <future>
#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

namespace bc {
namespace {

namespace fs = std::filesystem;

/// Tells when a file of a folder has been replaced.
class FileWatch {
  public:
    explicit FileWatch(const fs::path& folder) : fd_(inotify_init1(IN_CLOEXEC)) {
        inotify_add_watch(fd_, folder.c_str(), IN_MOVED_TO);
    }
    ~FileWatch() { close(fd_); }
    FileWatch(const FileWatch&) = delete;
    FileWatch& operator=(const FileWatch&) = delete;

    /// Waits for the file; false when nothing happens in the folder for a minute.
    bool waitFor(const std::string& name) {
        pollfd ready{fd_, POLLIN, 0};
        alignas(inotify_event) std::array<char, 4096> buffer{};
        for (bool found = false; !found;) {
            if (poll(&ready, 1, 60000) <= 0)
                return false;
            const ssize_t size = read(fd_, buffer.data(), buffer.size());
            inotify_event event{};
            for (ssize_t at = 0; at < size; at += static_cast<ssize_t>(sizeof event + event.len)) {
                std::memcpy(&event, &buffer[static_cast<std::size_t>(at)], sizeof event);
                found = found || name == &buffer[static_cast<std::size_t>(at) + sizeof event];
            }
        }
        return true;
    }

  private:
    int fd_;
};

/// Sends events of keyboard and mouse to the display.
int xdotool(const std::string& events) {
    return std::system(("xdotool " + events).c_str());
}

/// Width, height, and the mean brightness (0 to 1) of a PNG.
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
    FileWatch files(game.folder());
    auto run = std::async(std::launch::async, [&game] {
        return game.run({"--seed", "1", "--virtual-clock", "--no-logo", "--window", "640x480",
                         "+map", "hangar", "+gravity", "0", "+bind", "f6", "dumpworld", "+bind",
                         "f7", "quit", "+dumpworld", "start"});
    });
    ASSERT_TRUE(files.waitFor("start"));
    // The first dump may be of the pass in which the craft's key went down, the second is not.
    for (const char* events : {"mousemove 320 240 keydown d key F6", "key F6"}) {
        EXPECT_EQ(xdotool(events), 0);
        ASSERT_TRUE(files.waitFor("worlddump.xml"));
    }
    EXPECT_GT(game.dump("worlddump.xml").number(Dump::craft, "pos"),
              game.dump("start").number(Dump::craft, "pos"));
    EXPECT_EQ(xdotool("keyup d key F7"), 0);
    EXPECT_EQ(run.get(), 0) << game.standardError();
    EXPECT_TRUE(game.has("data/config.txt"));
}

TEST(ProgramDisplay, PicturesModesAndTheLogo) {
    RunGame game;
    ASSERT_EQ(game.run({"--seed", "1", "--virtual-clock", "--window", "1024x768", "--script",
                        RunGame::scriptPath("pictures.txt")}),
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
    EXPECT_FALSE(game.logHas("FAILED to load texture"));
    EXPECT_FALSE(game.logHas("NULL CHARACTER DESCRIPTOR"));
}

TEST(ProgramDisplay, RunsOverTheNewerLibraryToo) {
    constexpr const char* compat = "/usr/lib/x86_64-linux-gnu/sdl12-compat";
    ASSERT_TRUE(fs::exists(compat)) << "packages.txt names it";
    RunGame game;
    game.environment = {"LD_LIBRARY_PATH=" + std::string(compat)};
    EXPECT_EQ(game.run({"--seed", "1", "--virtual-clock", "--no-logo", "--script",
                        RunGame::scriptPath("pictures.txt")}),
              0)
        << game.standardError();
    EXPECT_GT(measure(game.folder() / "screenshots/screenshot0000.png")[2], 0.03);
}

}  // namespace
}  // namespace bc
