// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/Options.h"

#include <string>

namespace bc {

/// Decides where the game reads and writes: the named folders, else the working folder when it
/// holds the game's data, else $XDG_DATA_HOME/brightclash over the installed share folder.
/// False, with a one-line reason, when no data can be found or the user folder cannot be made.
bool chooseFolders(const Options& options, std::string& error);

}  // namespace bc
