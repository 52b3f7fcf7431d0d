// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/player/PlayerIntent.h"

namespace bc {

class Subsystems;

/// The one place where it is put together what the player wants in a pass: the actions that
/// keyboard and mouse hold, and the place in the world under the cursor in the picture drawn last.
class IntentSource {
  public:
    explicit IntentSource(Subsystems& subsystems) : subsystems_(subsystems) {}

    /// Once a pass: what acts once (the next and the previous weapon) is in the result of one call
    /// only.
    [[nodiscard]] PlayerIntent takeIntent();
    /// Once a drawn scene, with its camera in force: finds the place under the cursor and turns
    /// the craft's aim to it.
    void updateAim();
    /// Lets go of everything held, when a level starts. The aim stays.
    void clear();

  private:
    Subsystems& subsystems_;
};

}  // namespace bc
