// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

#include <optional>

namespace bc {

/// A plane through all points p with normal . p = d. The side that the normal points to is in
/// front of it.
struct Plane {
    /// Of unit length where distances are wanted in world units.
    Vector normal;
    float d = 0;

    /// Positive in front of the plane, negative behind it.
    [[nodiscard]] float distance(const Vector& p) const {
        return normal.x * p.x + normal.y * p.y + normal.z * p.z - d;
    }

    /// The parameter (0 at from, 1 at to) at which the line through both points meets the plane;
    /// nothing when it runs parallel to it. It may lie outside 0..1.
    [[nodiscard]] std::optional<float> intersect(const Vector& from, const Vector& to) const;
};

}  // namespace bc
