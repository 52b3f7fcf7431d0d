// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/weapons/Projectile.h"
#include "world/Creatable.h"

namespace bc {

/// Flies straight on and explodes at what it touches (type "rocketprojectile").
class RocketProjectile final : public Creatable<RocketProjectile, Projectile> {
  public:
    RocketProjectile();

    void renew() override;
    void attachEffects() override;
    void onTouch(const TouchInfo& touch) override;
};

}  // namespace bc
