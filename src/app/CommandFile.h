// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace bc {

/// Replaces a file of the user folder on behalf of a console command. False when that fails: the
/// console says so, and the log says why.
bool writeCommandFile(const std::string& name, std::string_view contents);

/// Prints to the console that the file cannot be written.
void reportUnwritable(const std::string& name);

}  // namespace bc
