// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class GameVar;
class Player;
struct PlayerIntent;

/// Makes the craft do what the player wants. Owned by the application. A dead player does nothing.
class PlayerControl {
  public:
    /// Binds the variable movemode.
    void init();
    /// Once a pass of the main loop, before its simulation steps: aim, weapons and grapple.
    void applyFiring(Player& player, const PlayerIntent& intent);
    /// Once a simulation step of step seconds.
    void applyMovement(Player& player, const PlayerIntent& intent, float step);
    /// Forgets what was held, when a level starts.
    void reset() { grappleHeld_ = false; }

  private:
    void fireGrapple(Player& player, const PlayerIntent& intent);
    void fireWeapons(Player& player, const PlayerIntent& intent);

    GameVar* moveMode_ = nullptr;
    /// The hook was fired by grapple and is to be let go on release.
    bool grappleHeld_ = false;
};

}  // namespace bc
