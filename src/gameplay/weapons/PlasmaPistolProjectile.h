// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/weapons/Projectile.h"
#include "world/Creatable.h"

namespace bc {

/// The bolt of plasma pistols flies straight on
/// and bursts at what it touches (type "plasmapistolprojectile").
class PlasmaPistolProjectile final : public Creatable<PlasmaPistolProjectile, Projectile> {
  public:
    PlasmaPistolProjectile();

    void renew() override;
    void attachEffects() override;
    void onTouch(const TouchInfo& touch) override;

  protected:
    void blastEffects() override;
};

}  // namespace bc
