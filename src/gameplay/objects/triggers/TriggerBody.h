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

    void onThink(float dt) override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;
    void loadState(const TiXmlElement& e) override;
    void saveState(TiXmlElement& e) const override;
    void dumpState(TiXmlElement& debug) const override;

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
