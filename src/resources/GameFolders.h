// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace bc {

/// Whether a folder holds the game's own files. One that holds no more than a person's config.txt
/// under data/ does not.
[[nodiscard]] bool isGameFolder(const std::filesystem::path& folder);
/// Where the game's own files lie when nobody names them: share/brightclash of the prefix that the
/// running program was installed under, or the program's folder in a build.
[[nodiscard]] std::filesystem::path shippedFolder();
/// Where a person's settings and saves lie: $XDG_DATA_HOME/brightclash.
[[nodiscard]] std::filesystem::path personalFolder();

}  // namespace bc
