// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/weapons/FireableWeapon.h"

namespace bc {

/// Hurts what is around its wielder.
class MeleeWeapon final : public FireableWeapon {
  public:
    MeleeWeapon() : FireableWeapon(1000, 0, 5) {}
    bool fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) override;
    void dumpState(TiXmlElement& e) const override;

    /// World units.
    float reach = 32;
};

}  // namespace bc
