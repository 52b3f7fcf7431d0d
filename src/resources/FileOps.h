// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace bc {

/// Lists of the files that the player may choose from: saves, adventures.
struct FileOps {
    struct FileSystemNode {
        /// Never set: folders are not listed.
        bool directory = false;
        /// Without the folder.
        std::string name;
    };

    /// Appends the files of a folder that match a wildcard pattern ("*.xml"), those of the user
    /// folder and the data folder together, by name in byte order, each name once. A folder name
    /// without any "/" gets one; with one, the pattern is put right behind it ("data/x/" lists the
    /// folder data/x). When nothing matches in either folder, or the name is not safe, the log
    /// says so and out stays as it was.
    static void getDirContents(const std::string& pattern, const std::string& folder,
                               std::vector<FileSystemNode>& out);
};

}  // namespace bc
