// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/movers/JumpPad.h"
#include "world/Creatable.h"

namespace bc {

/// One that can be switched on and off (type "triggeredjumppad").
class TriggeredJumpPad final : public Creatable<TriggeredJumpPad, JumpPad> {
  public:
    TriggeredJumpPad();
    void fields(BodyFields& f) override;

    void onSpawned() override;
    void onTouch(const TouchInfo& info) override;
    void onTriggered(GameBody* activator) override;
    void onThink(float dt) override;

    bool startOn = false;
    bool isOn = false;
    bool triggered = false;
    bool triggerOnce = false;
    /// Milliseconds, and the level time at which it switches back.
    float untriggerTime = 0;
    float untriggerAt = 0;
};

}  // namespace bc
