// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/OutputLog.h"

#include "resources/FileSystem.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace bc {

OutputLog::OutputLog(const std::string& name) {
    const auto path = files::writable(name);
    if (!path)
        return;
    const int file = open(path->c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (file < 0) {
        std::fprintf(stderr, "brightclash: cannot write %s\n", path->c_str());
        return;
    }
    std::fflush(stdout);
    saved_ = dup(STDOUT_FILENO);
    dup2(file, STDOUT_FILENO);
    close(file);
}

OutputLog::~OutputLog() {
    if (saved_ < 0)
        return;
    std::fflush(stdout);
    dup2(saved_, STDOUT_FILENO);
    close(saved_);
}

}  // namespace bc
