// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "support/Places.h"

namespace bc::test {

std::string sourcePath(const std::string& name) {
    return BRIGHTCLASH_SOURCE_DIR "/" + name;
}

std::string gamePath(const std::string& name) {
    return BRIGHTCLASH_GAME_DIR "/" + name;
}

}  // namespace bc::test
