// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/hazards/Liquid.h"
#include "world/Creatable.h"

namespace bc {

/// Burns (type "lava").
class Lava final : public Creatable<Lava, Liquid> {
  public:
    /// Damage of one contact, and milliseconds until the next one hurts.
    static constexpr int burn = 10;
    static constexpr float burnInterval = 200;

    Lava();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo& info) override;
    void textureTransform(TextureTransform& transform) override;
};

}  // namespace bc
