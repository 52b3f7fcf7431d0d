// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace bc {

/// What the command line asks for.
struct Options {
    enum class Action { play, help, version };

    Action action = Action::play;
    /// Empty when not named.
    std::string userFolder;
    std::string dataFolder;
    /// Window size in pixels, over the configured one.
    std::optional<int> width;
    std::optional<int> height;
    bool fullscreen = false;
    std::optional<std::uint32_t> seed;
    bool headless = false;
    bool virtualClock = false;
    bool skipLogo = false;
    /// Passes of the main loop after which the game quits.
    std::optional<std::uint32_t> frames;
    /// Milliseconds a pass lasts on the virtual clock.
    std::uint32_t frameMs = 25;
    std::string scriptFile;
    /// "+command args" groups without the plus, in order.
    std::vector<std::string> commands;
};

/// Reads the arguments behind the program's name. On a mistake the result is empty and error says
/// what is wrong in one line.
std::optional<Options> parseOptions(const std::vector<std::string>& args, std::string& error);

/// The text of --help.
std::string usageText();

}  // namespace bc
