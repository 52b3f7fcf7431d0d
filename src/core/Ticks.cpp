// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/Ticks.h"

#include <SDL/SDL.h>

namespace bc {

namespace {

bool virtualClock = false;
std::uint32_t virtualTicks = 0;

}  // namespace

std::uint32_t ticks() {
    return virtualClock ? virtualTicks : SDL_GetTicks();
}
float ticksNow() {
    return static_cast<float>(ticks());
}

void useVirtualTicks(std::uint32_t startMs) {
    virtualClock = true;
    virtualTicks = startMs;
}

void useRealTicks() {
    virtualClock = false;
}
bool ticksAreVirtual() {
    return virtualClock;
}
void advanceVirtualTicks(std::uint32_t ms) {
    virtualTicks += ms;
}

}  // namespace bc
