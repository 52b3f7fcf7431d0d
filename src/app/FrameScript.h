// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace bc {

/// Lines "FRAME TEXT": each text is run once, at the start of the pass of the main loop with that
/// number (from 0), in file order. '#' starts a comment.
class FrameScript {
  public:
    /// Parses a file or a pipe. The path may lead anywhere, since it comes from the command line.
    /// False when it cannot be read, and as parse.
    bool load(const std::string& path, std::string& error);
    /// Replaces the script. False when a line does not begin with a frame number: error names the
    /// line, and the script stays as it was.
    bool parse(const std::string& text, std::string& error);

    /// Calls run for every line due up to and including frame, once each.
    void runDue(std::uint32_t frame, const std::function<void(const std::string&)>& run);

  private:
    struct Line {
        std::uint32_t frame;
        std::string text;
    };
    std::vector<Line> lines_;
    std::size_t next_ = 0;
};

}  // namespace bc
