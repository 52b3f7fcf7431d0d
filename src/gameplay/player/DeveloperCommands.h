// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

/// warpto, warpnearest, fireplayer, fireplayeratmouse, getmousepos, killvelocity and playerinfo.
/// They act on whoever is the player when they are run.
void registerDeveloperCommands();

}  // namespace bc
