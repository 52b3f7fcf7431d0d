// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/hazards/Liquid.h"
#include "world/Creatable.h"

namespace bc {

/// With a splash for what falls in (type "water").
class Water final : public Creatable<Water, Liquid> {
  public:
    Water();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo& info) override;
    void textureTransform(TextureTransform& transform) override;
};

}  // namespace bc
