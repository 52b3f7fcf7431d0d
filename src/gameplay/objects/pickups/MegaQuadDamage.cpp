// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/MegaQuadDamage.h"

namespace bc {

MegaQuadDamage::MegaQuadDamage() : Creatable("megaquad", 8, "megaquadpickup") {}

}  // namespace bc
