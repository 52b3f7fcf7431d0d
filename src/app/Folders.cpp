// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/Folders.h"

#include "resources/FileSystem.h"
#include "resources/GameFolders.h"

#include <filesystem>
#include <system_error>

namespace bc {

namespace {

namespace fs = std::filesystem;

bool holdsData(const fs::path& folder) {
    std::error_code ignored;
    return fs::is_directory(folder / "data", ignored) || fs::exists(folder / "data.zip", ignored);
}

}  // namespace

bool chooseFolders(const Options& options, std::string& error) {
    fs::path user = options.userFolder;
    fs::path data = options.dataFolder;
    const bool here = isGameFolder(".");
    // The user folder's files replace those of the data folder. With --data those of the working
    // folder must not do so.
    if (user.empty())
        user = here && data.empty() ? fs::path(".") : personalFolder();
    if (data.empty())
        data = here ? fs::path(".") : shippedFolder();
    std::error_code problem;
    fs::create_directories(user, problem);
    if (!fs::is_directory(user, problem)) {
        error = "cannot make the folder " + user.string();
        return false;
    }
    if (!holdsData(data)) {
        error = "no data/ in " + data.string() + " (name the game's folder with --data)";
        return false;
    }
    files::setFolders(user.string(), data.string());
    return true;
}

}  // namespace bc
