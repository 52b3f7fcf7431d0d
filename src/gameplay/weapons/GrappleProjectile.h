// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/weapons/Projectile.h"
#include "world/Creatable.h"

namespace bc {

/// The hook of the grapple (type "grappleprojectile"): flies until it touches something solid, then
/// holds there and pulls the player towards it. Saves leave it out.
class GrappleProjectile final : public Creatable<GrappleProjectile, Projectile> {
  public:
    GrappleProjectile();
    void fields(BodyFields& f) override;

    void renew() override;
    void onThink(float dt) override;
    void onTouch(const TouchInfo& touch) override;
    [[nodiscard]] bool acceptsCollision(const Body& other) const override;
    [[nodiscard]] bool keptInSaves() const override { return false; }

    /// Units a second.
    float pullSpeed = 600;
    bool holding = false;

  private:
    /// Takes it to where it meets what it hits, t being TouchInfo::t: at its speed it would hang in
    /// the air a craft's length before the wall, or be as deep in it.
    void settleAt(float t);

    /// Length of the simulation step, seconds.
    float step_ = 0;
};

}  // namespace bc
