// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// Vanishes when something sets it off, and is back after a time (type "alphadoor").
class AlphaDoor final : public Creatable<AlphaDoor, GameBody> {
  public:
    AlphaDoor();
    void fields(BodyFields& f) override;

    void onSpawned() override;
    void onRestored() override;
    void onTriggered(GameBody* activator) override;
    [[nodiscard]] bool blocksSight() const override { return true; }
    [[nodiscard]] bool bouncesGrenades() const override { return true; }
    void onThink(float dt) override;

    /// Milliseconds.
    float timeOpen = 0;
    bool startOpen = false;
    bool isOpen = false;
    bool triggered = false;
    bool triggerOnce = false;
    /// Level time (ms) at which it turns back.
    float closeAt = 0;

  private:
    /// Open: neither seen nor met.
    void apply();
    void toggle();
};

}  // namespace bc
