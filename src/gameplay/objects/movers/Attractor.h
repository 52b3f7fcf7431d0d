// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// Pulls what is around it, ten times a second (type "attractor").
class Attractor final : public Creatable<Attractor, GameBody> {
  public:
    Attractor();
    void fields(BodyFields& f) override;

    void onLoaded() override;
    void onThink(float dt) override;

    /// Speed added at each pull (units a second); negative pushes away.
    float force = 0;
    /// World units.
    float reach = 0;
};

}  // namespace bc
