// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

namespace bc {

/// An axis-aligned box; of nothing when min is above max.
struct Box {
    float minX;
    float maxX;
    float minY;
    float maxY;
};

/// A body's box for the spatial index, in world units. minX..maxY are what is compared: the box of
/// the polygon at its projected position, stretched back over the way it takes there.
/// Filled by Body::computeBounds and Body::updateSweptBounds only, which also tell the index.
struct BRect {
    float minX = 0;
    float maxX = 0;
    float minY = 0;
    float maxY = 0;
    // Extents of the resting polygon around the body's position.
    float left = 0;
    float right = 0;
    float top = 0;
    float bottom = 0;
    // The same with the motion of the step added on the side it comes from.
    float sweptLeft = 0;
    float sweptRight = 0;
    float sweptTop = 0;
    float sweptBottom = 0;
    Vector centre;
};

}  // namespace bc
