// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// Hurts what touches it while it is on (type "painbody").
class PainBody final : public Creatable<PainBody, GameBody> {
  public:
    /// Milliseconds between two contacts that hurt.
    static constexpr float painInterval = 100;

    PainBody();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo& info) override;
    void onTriggered(GameBody* activator) override;
    void onThink(float dt) override;
    /// Its picture drifts upwards while it is on, and stands still while it is off.
    [[nodiscard]] bool hasTextureTransform() const override { return on; }
    void textureTransform(TextureTransform& transform) override;

    bool on = false;
    /// Damage of one contact.
    int pain = 0;
    /// Milliseconds after which being switched is undone; 0: never.
    float revertTimer = 0;
    bool triggered = false;
    /// Level time (ms).
    float revertAt = 0;
};

}  // namespace bc
