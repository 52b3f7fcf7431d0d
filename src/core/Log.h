// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace bc {

/// Writes to standard output, which the program redirects to its log file. logLine adds the
/// newline. Each call reaches the file at once, so that a crash loses nothing.
void logText(std::string_view text);
void logLine(std::string_view text);

}  // namespace bc
