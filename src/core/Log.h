// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace bc {

/// Both write to standard output, which the program redirects to its log file, and flush it, so
/// that a crash loses nothing. logLine adds a newline.
void logText(std::string_view text);
void logLine(std::string_view text);

}  // namespace bc
