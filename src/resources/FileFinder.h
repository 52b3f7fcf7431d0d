// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace bc {

/// One entry of a folder, without the folder's name.
struct FoundFile {
    bool directory = false;
    std::string name;
};

/// Walks the entries of one real folder that match a wildcard pattern ("*" any run of characters,
/// "?" any one, letter case counts), in byte order of their names. The listing is taken when the
/// search starts; later changes of the folder do not show.
class FileFinder {
  public:
    /// pattern is a path whose last part may hold wildcards. Nothing when the folder cannot be
    /// read or nothing in it matches.
    std::optional<FoundFile> findFirst(const std::string& pattern);
    /// Nothing after the last match.
    std::optional<FoundFile> findNext();
    void close();

  private:
    std::vector<FoundFile> found_;
    std::size_t next_ = 0;
};

/// Takes at most the product of both lengths in steps.
[[nodiscard]] bool matchesWildcard(std::string_view pattern, std::string_view name);

}  // namespace bc
