// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/pickups/QuadDamage.h"
#include "world/Creatable.h"

namespace bc {

/// Eight times (type "megaquad").
class MegaQuadDamage final : public Creatable<MegaQuadDamage, QuadDamage> {
  public:
    MegaQuadDamage();
};

}  // namespace bc
