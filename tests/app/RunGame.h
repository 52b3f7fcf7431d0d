// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace bc {

/// One run of the built program in a user folder of its own, which goes with the object.
class RunGame {
  public:
    RunGame();
    ~RunGame();
    RunGame(const RunGame&) = delete;
    RunGame& operator=(const RunGame&) = delete;

    /// Written to the user folder before the run.
    void write(const std::string& name, const std::string& text) const;
    /// Puts the lines into a script file and adds --script for it.
    void script(const std::string& lines);
    /// Without a window. The exit status, or -1 when the program was killed by a signal.
    int headless(std::vector<std::string> args);
    /// The same with exactly these arguments behind --user and --data.
    int run(std::vector<std::string> args);

    /// Empty for a missing file.
    [[nodiscard]] std::string read(const std::string& name) const;
    [[nodiscard]] bool has(const std::string& name) const;
    [[nodiscard]] std::string log() const { return read("outputlog.txt"); }
    [[nodiscard]] const std::string& standardError() const { return error_; }
    [[nodiscard]] std::filesystem::path folder() const { return folder_; }

    /// The game's data folder; the built one unless changed.
    std::filesystem::path data;
    /// "NAME=value" of each variable that the program's runs get beside those of the test.
    std::vector<std::string> environment;

  private:
    std::filesystem::path folder_;
    std::string scriptFile_;
    std::string error_;
};

}  // namespace bc
