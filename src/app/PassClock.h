// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/Options.h"
#include "core/Ticks.h"

namespace bc {

/// The virtual clock of a run as the main loop drives it; on the real clock nothing.
class PassClock {
  public:
    explicit PassClock(const Options& options) : options_(options) {}

    /// At the start of each pass, the frames of the logos included: advances the virtual clock by
    /// the milliseconds of a pass.
    void beginPass() const {
        if (options_.virtualClock)
            advanceVirtualTicks(options_.frameMs);
    }

  private:
    const Options& options_;
};

}  // namespace bc
