// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Digits.h"

#include <string>
#include <string_view>

namespace bc {

/// A stopwatch over core/Ticks. All its times are milliseconds on that clock, held as floats. The
/// owner calls tick() once a frame; between two ticks every reading stays the same. The time
/// between pause() and resume() does not count as elapsed.
struct BasicTimer {
    /// When the measured time began.
    float start = 0;
    /// Time of the last tick() and of the one before it.
    float current = 0;
    float previous = 0;
    /// An interval in milliseconds for the owner to compare elapsed() with; the timer itself does
    /// not use it.
    float rate = 0;
    /// For the owner: whether the measured time counts. The timer itself does not use it.
    bool running = true;
    /// The value of current when pause() was called.
    float pauseTime = 0;
    bool paused = false;

    /// Sets start, current and previous to now, rate to 1000, running to true and paused to false.
    void restart();
    void tick();
    /// Marks the timer as paused. The owner stops calling tick() until resume() or restart().
    void pause();
    /// Moves all times forward by the time since pause(), so that current is now.
    void resume();
    /// Milliseconds from start to current.
    [[nodiscard]] float elapsed() const { return current - start; }
    [[nodiscard]] float elapsedSeconds() const { return elapsed() / 1000.0F; }
    /// Seconds from previous to current.
    [[nodiscard]] float frameSeconds() const { return (current - previous) / 1000.0F; }

    /// "start,current,previous,rate,running", where running is "true" or "false".
    [[nodiscard]] std::string toString(Digits digits = Digits::usual) const;
    /// Reads the text form, then moves all times so that current is now and the elapsed time is
    /// the one that was written. A text with fewer than five fields is not read; the times move
    /// nevertheless. The timer is not paused afterwards.
    void fromString(std::string_view text);
};

}  // namespace bc
