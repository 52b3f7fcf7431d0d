// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace bc {

/// One entry of a folder.
struct FoundFile {
    bool directory = false;
    /// Without the path of the folder.
    std::string name;
};

/// Finds the entries of one folder whose names match a wildcard pattern, in the byte order of the
/// names. findFirst reads the whole folder; changes made to it later do not count.
class FileFinder {
  public:
    /// pattern is a path of the operating system whose last part may contain wildcards. Nothing
    /// when the folder cannot be read or no name matches.
    std::optional<FoundFile> findFirst(const std::string& pattern);
    /// The next match; nothing after the last one.
    std::optional<FoundFile> findNext();
    void close();

  private:
    std::vector<FoundFile> found_;
    std::size_t next_ = 0;
};

/// Whether the whole name matches the pattern: "*" stands for any number of characters, "?" for
/// exactly one, and upper and lower case differ. Takes at most as many steps as the product of both
/// lengths.
[[nodiscard]] bool matchesWildcard(std::string_view pattern, std::string_view name);

}  // namespace bc
