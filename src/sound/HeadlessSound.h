// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "sound/Sound.h"

namespace bc {

/// The sound system without a device: definitions, channels and the playlist behave as ever, and
/// what "plays" does so for its length on the game's clock.
class HeadlessSound final : public Sound {
  public:
    HeadlessSound();
};

}  // namespace bc
