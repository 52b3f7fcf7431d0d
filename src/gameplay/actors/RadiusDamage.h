// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

namespace bc {

class GameBody;

/// Pushes every body around the centre away (less at the rim: knockback 1 is 120 units a second in
/// the middle, more sideways than up) and hurts the game bodies among them, all by the same amount.
/// Not hurt: the owner, and its friends when the owner is on the player's side. owner may be null.
void radiusDamage(const Vector& centre, float radius, float knockback, int damage, int damageType,
                  GameBody* owner);

}  // namespace bc
