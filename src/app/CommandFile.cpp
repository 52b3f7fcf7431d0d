// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/CommandFile.h"

#include "command/CommandRegistry.h"
#include "resources/FileSystem.h"

namespace bc {

bool writeCommandFile(const std::string& name, std::string_view contents) {
    if (files::replace(name, contents))
        return true;
    reportUnwritable(name);
    return false;
}

void reportUnwritable(const std::string& name) {
    consolePrint("Can't write file: " + name);
}

}  // namespace bc
