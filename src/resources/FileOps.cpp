// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "resources/FileOps.h"

#include "core/Log.h"
#include "resources/FileFinder.h"
#include "resources/FileSystem.h"

#include <optional>
#include <set>

namespace bc {

void FileOps::getDirContents(const std::string& pattern, const std::string& folder,
                             std::vector<FileSystemNode>& out) {
    std::string search = folder;
    if (search.find('/') == std::string::npos)
        search += '/';
    search += pattern;

    bool started = false;
    std::set<std::string> names;
    if (files::isSafeName(search)) {
        for (const std::string* root : {&files::userFolder(), &files::dataFolder()}) {
            FileFinder finder;
            std::optional<FoundFile> file = finder.findFirst(*root + '/' + search);
            started = started || file.has_value();
            for (; file; file = finder.findNext()) {
                if (!file->directory)
                    names.insert(file->name);
            }
        }
    }
    if (!started) {
        logLine("getDirContents error");
        return;
    }
    for (const std::string& name : names)
        out.push_back({false, name});
}

}  // namespace bc
