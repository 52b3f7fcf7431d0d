// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

namespace bc {

class GrappleProjectile;

/// What a body keeps of its grappling hook. The player is one.
struct GrappleHolder {
    virtual ~GrappleHolder() = default;

    bool grappling = false;
    /// Where the rope was last drawn to.
    Vector ropeEnd;
    /// In flight or holding; null while it is in hand. Not owned.
    GrappleProjectile* grappleHook = nullptr;
};

/// The player's; null while there is no player.
[[nodiscard]] GrappleHolder* playersGrapple();

}  // namespace bc
