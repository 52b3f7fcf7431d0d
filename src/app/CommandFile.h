// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace bc {

/// Replaces a file of the user folder that a console command was told to write. When that fails
/// the console says so (the log says why), and the result is false.
bool writeCommandFile(const std::string& name, std::string_view contents);

/// What the console says then.
void reportUnwritable(const std::string& name);

}  // namespace bc
