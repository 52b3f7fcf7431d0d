// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace bc {

/// Lines "FRAME TEXT" that are run at the start of that pass of the main loop, in file order.
class FrameScript {
  public:
    /// Parses a file or a pipe of any folder: it is named by the person who starts the game.
    /// On failure as parse.
    bool load(const std::string& path, std::string& error);
    /// Reads the whole text. On a line that does not begin with a frame number the script stays
    /// empty, error names the line, and the result is false. '#' starts a comment.
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
