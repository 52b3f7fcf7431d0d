// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

/// Registers the commands about the program itself: version, sdlinfo, lockmouse and unlockmouse.
/// Without a window there is no mouse to lock.
void registerSystemCommands(bool hasWindow);

}  // namespace bc
