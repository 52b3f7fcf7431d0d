// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace bc {

/// Milliseconds since SDL was started, or the time of the virtual clock while that is in use. The
/// game reads the time only here.
std::uint32_t ticks();
/// The same as a float.
float ticksNow();

/// Switches to a virtual clock that starts at startMs and changes only through
/// advanceVirtualTicks.
void useVirtualTicks(std::uint32_t startMs = 0);
/// Switches back to SDL's clock.
void useRealTicks();
bool ticksAreVirtual();
void advanceVirtualTicks(std::uint32_t ms);

}  // namespace bc
