// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/weapons/Projectile.h"

namespace bc {

/// Flies straight on and explodes at what it touches (type "rocketprojectile").
class RocketProjectile : public Projectile {
  public:
    RocketProjectile();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void renew() override;
    void attachEffects() override;
    void onTouch(const TouchInfo& touch) override;
};

/// The bolt of plasma pistols (type "plasmapistolprojectile"): a rocket's little sister.
class PlasmaPistolProjectile final : public Projectile {
  public:
    PlasmaPistolProjectile();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void renew() override;
    void attachEffects() override;
    void onTouch(const TouchInfo& touch) override;

  protected:
    void blastEffects() override;
};

}  // namespace bc
