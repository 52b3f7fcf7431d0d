// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"

namespace bc {

/// Pulls what is around it, ten times a second (type "attractor").
class Attractor final : public GameBody {
  public:
    Attractor();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onLoaded() override;
    void onThink(float dt) override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;

    /// Speed added at each pull (units a second); negative pushes away.
    float force = 0;
    /// World units.
    float reach = 0;
};

}  // namespace bc
