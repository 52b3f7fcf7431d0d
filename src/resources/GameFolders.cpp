// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "resources/GameFolders.h"

#include <cstdlib>
#include <system_error>

namespace bc {

namespace fs = std::filesystem;

bool isGameFolder(const fs::path& folder) {
    std::error_code ignored;
    return fs::exists(folder / "data" / "gamevars.xml", ignored) ||
           fs::is_directory(folder / "data" / "fonts", ignored) ||
           fs::exists(folder / "data.zip", ignored);
}

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

}  // namespace bc
