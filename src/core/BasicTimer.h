// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Digits.h"

#include <string>
#include <string_view>

namespace bc {

/// A clock in milliseconds of core/Ticks, held as floats. Its owner ticks it; time spent paused
/// does not count, and a saved clock keeps its elapsed time when it is read back.
struct BasicTimer {
    float start = 0;
    float current = 0;
    float previous = 0;
    /// Milliseconds a second; owners set 1000.
    float rate = 0;
    bool running = true;
    float pauseTime = 0;
    bool paused = false;

    /// start = current = previous = now, running and not paused, at 1000 ms a second.
    void restart();
    void tick();
    void pause();
    void resume();
    /// Milliseconds from start to current.
    [[nodiscard]] float elapsed() const { return current - start; }
    [[nodiscard]] float elapsedSeconds() const { return elapsed() / 1000.0F; }
    /// Seconds between the last two ticks.
    [[nodiscard]] float frameSeconds() const { return (current - previous) / 1000.0F; }

    /// "start,current,previous,rate,running" with running as true or false.
    [[nodiscard]] std::string toString(Digits digits = Digits::usual) const;
    /// Reads the text form (fewer than five fields: the fields stay) and moves the times so that
    /// current is now and the elapsed time is what it was; not paused.
    void fromString(std::string_view text);
};

}  // namespace bc
