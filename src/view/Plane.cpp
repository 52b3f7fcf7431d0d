// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "view/Plane.h"

namespace bc {

std::optional<float> Plane::intersect(const Vector& from, const Vector& to) const {
    const Vector direction = to - from;
    const float slope = normal.x * direction.x + normal.y * direction.y + normal.z * direction.z;
    if (slope == 0)
        return std::nullopt;
    return -distance(from) / slope;
}

}  // namespace bc
