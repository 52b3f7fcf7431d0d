// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "sound/Sound.h"

namespace bc {

/// The sound system without a device. Definitions, channels and the playlist work as with one; a
/// sound counts as playing for its length on the game's clock (core/Ticks).
class HeadlessSound final : public Sound {
  public:
    HeadlessSound();
};

}  // namespace bc
