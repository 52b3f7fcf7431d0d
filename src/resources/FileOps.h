// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace bc {

/// Lists files for the player to choose from, such as saves and adventures.
struct FileOps {
    struct FileSystemNode {
        /// Always false, since folders are not listed.
        bool directory = false;
        /// Without the path of the folder.
        std::string name;
    };

    /// Appends the files of a folder whose names match a wildcard pattern such as "*.xml" to out:
    /// those of the user folder and of the data folder together, in byte order, each name once.
    /// A "/" is added to a folder name that contains none. The pattern is appended directly to
    /// every other one, so "data/x/" names the folder data/x. When nothing matches or the path is
    /// not safe (files::isSafeName), the log says so and out stays as it was.
    static void getDirContents(const std::string& pattern, const std::string& folder,
                               std::vector<FileSystemNode>& out);
};

}  // namespace bc
