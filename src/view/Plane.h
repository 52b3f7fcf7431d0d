// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

#include <optional>

namespace bc {

/// The plane of all points p with normal . p = d. The normal points to its front.
struct Plane {
    /// Must have length 1 for distance() to be in world units.
    Vector normal;
    float d = 0;

    /// Positive in front of the plane, negative behind it.
    [[nodiscard]] float distance(const Vector& p) const {
        return normal.x * p.x + normal.y * p.y + normal.z * p.z - d;
    }

    /// Where the line through both points meets the plane: 0 is at from, 1 is at to, and other
    /// numbers are possible. Nothing when the line is parallel to the plane.
    [[nodiscard]] std::optional<float> intersect(const Vector& from, const Vector& to) const;
};

}  // namespace bc
