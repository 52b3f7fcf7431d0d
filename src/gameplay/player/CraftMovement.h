// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class Player;
struct PlayerIntent;

/// What the player's will does to the craft in one simulation step of dt seconds: thrust with the
/// damping of the engines, boost and brakes. platform: run and jump instead of free flight.
void moveCraft(Player& player, const PlayerIntent& intent, bool platform, float dt);

}  // namespace bc
