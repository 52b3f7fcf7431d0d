// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"

namespace bc {

/// Goes up when it is shot, each time it has a life to lose, and takes what stands around with it
/// (type "explodingbarrel").
class ExplodingBarrel final : public GameBody {
  public:
    // The blast: world units, factor of the usual push, damage before difficulty.
    static constexpr float blastRadius = 32;
    static constexpr float blastKnockback = 0.5F;
    static constexpr int blastDamage = 50;

    ExplodingBarrel();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void die() override;

  private:
    bool exploding_ = false;
};

}  // namespace bc
