// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/Folders.h"

#include "resources/FileSystem.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace bc {

namespace {

namespace fs = std::filesystem;

bool holdsData(const fs::path& folder) {
    std::error_code ignored;
    return fs::is_directory(folder / "data", ignored) || fs::exists(folder / "data.zip", ignored);
}

/// A folder that holds no more than a person's config.txt under data/ is not the game's.
bool isGameFolder(const fs::path& folder) {
    std::error_code ignored;
    return fs::exists(folder / "data" / "gamevars.xml", ignored) ||
           fs::is_directory(folder / "data" / "fonts", ignored) ||
           fs::exists(folder / "data.zip", ignored);
}

/// The game's own files: share/brightclash of the prefix, or the program's folder in a build.
fs::path shippedFolder() {
    std::error_code ignored;
    const fs::path program = fs::read_symlink("/proc/self/exe", ignored).parent_path();
    const fs::path shared = program.parent_path() / "share" / "brightclash";
    return !isGameFolder(program) && isGameFolder(shared) ? shared : program;
}

fs::path personalFolder() {
    if (const char* xdg = std::getenv("XDG_DATA_HOME"); xdg != nullptr && xdg[0] == '/')
        return fs::path(xdg) / "brightclash";
    const char* home = std::getenv("HOME");
    return fs::path(home != nullptr ? home : ".") / ".local" / "share" / "brightclash";
}

}  // namespace

bool chooseFolders(const Options& options, std::string& error) {
    fs::path user = options.userFolder;
    fs::path data = options.dataFolder;
    const bool here = isGameFolder(".");
    // Beside other data than the working folder's, its own must not lie over them.
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
