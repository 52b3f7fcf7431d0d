// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace bc {

/// Milliseconds since the program started: the one place where the game reads a clock.
/// While a virtual clock is in force they are what advanceVirtualTicks made them.
std::uint32_t ticks();
/// The same as a float, the unit of every timer of the game.
float ticksNow();

/// From now on ticks() stands still but for advanceVirtualTicks; it starts at startMs.
void useVirtualTicks(std::uint32_t startMs = 0);
void useRealTicks();
bool ticksAreVirtual();
void advanceVirtualTicks(std::uint32_t ms);

}  // namespace bc
