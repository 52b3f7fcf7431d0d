// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Dump.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace bc {

/// Runs of the built program in a user folder of its own, which goes with the object.
class RunGame {
  public:
    RunGame();
    ~RunGame();
    RunGame(const RunGame&) = delete;
    RunGame& operator=(const RunGame&) = delete;

    /// The file tests/app/scripts/NAME, and what is in it.
    [[nodiscard]] static std::string scriptPath(const std::string& name);
    [[nodiscard]] static std::string scriptLines(const std::string& name);
    /// Writes a file of the user folder.
    void write(const std::string& name, const std::string& text) const;
    /// Copies tests/app/user/NAME to NAME in the user folder.
    void provide(const std::string& name) const;

    // The exit status, or -1 when the program was killed by a signal.
    /// Runs the script NAME.txt without a window; {KEY} in it is replaced by the key's value.
    int play(const std::string& name, const std::map<std::string, std::string>& values = {});
    /// The same with the lines themselves.
    int playLines(const std::string& lines);
    /// Without a window.
    int headless(std::vector<std::string> args);
    /// With exactly these arguments behind --user and --data.
    int run(std::vector<std::string> args);

    /// Empty for a missing file of the user folder.
    [[nodiscard]] std::string read(const std::string& name) const;
    [[nodiscard]] Dump dump(const std::string& name) const { return Dump(read(name)); }
    [[nodiscard]] bool has(const std::string& name) const;
    [[nodiscard]] std::string log() const { return read("outputlog.txt"); }
    [[nodiscard]] bool logHas(const std::string& text) const {
        return log().find(text) != std::string::npos;
    }
    [[nodiscard]] const std::string& standardError() const { return error_; }
    [[nodiscard]] std::filesystem::path folder() const { return folder_; }

    /// The game's data folder; the built one unless changed.
    std::filesystem::path data;
    /// "NAME=value" of each variable that the program's runs get beside those of the test.
    std::vector<std::string> environment;
    /// Standard streams (0 to 2) that are closed when the program starts.
    std::vector<int> closedStreams;

  private:
    std::filesystem::path folder_;
    std::string error_;
};

}  // namespace bc
