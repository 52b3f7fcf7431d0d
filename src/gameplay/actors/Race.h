// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/BasicTimer.h"

namespace bc {

/// A body that takes part in races. Called for every one in the world, in its order.
class RaceMember {
  public:
    virtual ~RaceMember() = default;
    /// A race begins: what was counted in an earlier one counts no more.
    virtual void onRaceStarted() = 0;
    /// The race was called off: back to the start.
    virtual void onRaceReset() = 0;
};

/// The race that is being flown: whether one runs, its clock, and what the player is told of it.
/// The bodies of the course drive it. Owned by the rules of play.
class Race {
  public:
    [[nodiscard]] bool isActive() const { return active_; }
    /// Milliseconds; stands still, at the last race's time, while none runs.
    [[nodiscard]] float time() const { return clock_.elapsed(); }
    /// Starts from zero.
    void start();
    /// Shows the time so far; nothing while no race runs.
    void checkpoint();
    /// Ends the race and shows its time; the clock stops in any case.
    void finish();
    /// Calls the race off.
    void reset();

    /// A level ends, and its race with it.
    void endLevel() { active_ = false; }
    /// A level begins that no save continues.
    void beginLevel() { clock_.restart(); }
    // The clock goes on, stands and goes on again with the level's.
    void tick();
    void pause();
    void resume();

    [[nodiscard]] const BasicTimer& clock() const { return clock_; }
    /// Of a save.
    void restore(bool active, const BasicTimer& clock);

  private:
    bool active_ = false;
    BasicTimer clock_;
};

}  // namespace bc
