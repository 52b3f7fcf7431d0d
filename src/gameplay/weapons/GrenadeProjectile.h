// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/weapons/Projectile.h"
#include "world/Creatable.h"

namespace bc {

/// Falls, bounces off walls and doors, and explodes at whatever else it touches or when its fuse is
/// over (type "grenadeprojectile").
class GrenadeProjectile final : public Creatable<GrenadeProjectile, Projectile> {
  public:
    GrenadeProjectile();
    void fields(BodyFields& f) override;

    void renew() override;
    void attachEffects() override;
    void onThink(float dt) override;
    void onTouch(const TouchInfo& touch) override;
    [[nodiscard]] bool acceptsCollision(const Body& other) const override;

    /// Level time of the next possible sound, ms.
    float nextBounceSound = 0;
};

}  // namespace bc
