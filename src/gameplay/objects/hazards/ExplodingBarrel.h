// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// Goes up when it is shot, each time it has a life to lose, and takes what stands around with it
/// (type "explodingbarrel").
class ExplodingBarrel final : public Creatable<ExplodingBarrel, GameBody> {
  public:
    // The blast: world units, factor of the usual push, damage before difficulty.
    static constexpr float blastRadius = 32;
    static constexpr float blastKnockback = 0.5F;
    static constexpr int blastDamage = 50;

    ExplodingBarrel();
    void fields(BodyFields& f) override;

    void die() override;

  private:
    bool exploding_ = false;
};

}  // namespace bc
