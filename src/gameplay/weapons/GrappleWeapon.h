// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/weapons/FireableWeapon.h"

namespace bc {

class GrappleProjectile;

/// Shoots a hook on a rope, one at a time, which is out until the trigger is let go.
class GrappleWeapon final : public FireableWeapon {
  public:
    GrappleWeapon() : FireableWeapon(10, 0, 0) {}

    bool fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) override;
    void unfire(float time) override;
    /// Forgets the hook without touching it.
    void reset() override;
    [[nodiscard]] int ammoAfterShot(int count) const override;
    void onBodyRemoved(const Body& gone) override;

    [[nodiscard]] GrappleProjectile* hook() const { return hook_; }

  private:
    /// Not owned.
    GrappleProjectile* hook_ = nullptr;
};

}  // namespace bc
