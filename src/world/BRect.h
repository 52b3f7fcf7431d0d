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
/// the polygon at the body's projectedpos, stretched back over the way it takes there.
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
};

/// A place in the plane of play.
struct PlanarPoint {
    float x = 0;
    float y = 0;

    constexpr PlanarPoint() = default;
    constexpr PlanarPoint(float px, float py) : x(px), y(py) {}
    constexpr PlanarPoint(const Vector& v) : x(v.x), y(v.y) {}
    constexpr operator Vector() const { return {x, y}; }
};

}  // namespace bc
