// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"

namespace bc {

/// What all bodies share that go off once and then rest: the time they rest, and coming back to
/// readiness at the next think after it. Not in levels itself.
class TriggerBody : public GameBody {
  public:
    TriggerBody();
    void fields(BodyFields& f) override;

    void onThink(float dt) override;

    /// Has gone off and rests.
    bool triggered = false;
    /// Stays at rest for good.
    bool triggerOnce = false;
    /// Milliseconds of rest.
    float untriggerTime = 0;
    /// Level time (ms) at which the rest ends.
    float untriggerAt = 0;

  protected:
    /// Goes to rest.
    void arm();
    /// The rest is over; triggered is false again.
    virtual void onRearmed() {}
    /// The touching body is the player and this one is not at rest.
    [[nodiscard]] bool isReadyFor(const TouchInfo& info) const;
};

}  // namespace bc
