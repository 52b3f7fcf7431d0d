// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

namespace bc {

/// A polygon prepared for the collision test: its corners four at a time, and the axes across its
/// edges with the polygon's own extent along each. Immutable; bodies of the same polygon (all boxes
/// of one size) share one object.
class CollisionShape {
  public:
    /// Across an edge (not of unit length). Edges of no length and those parallel to an earlier one
    /// of the same length, whose axis would give the same values, are left out.
    struct Axis {
        float x, y;
        float min, max;
        float length;
    };

    /// The shape of these corners (x and y), made or found among the living ones.
    [[nodiscard]] static std::shared_ptr<const CollisionShape> of(std::span<const Vector> corners);

    explicit CollisionShape(std::span<const Vector> corners);
    CollisionShape(const CollisionShape&) = delete;
    CollisionShape& operator=(const CollisionShape&) = delete;

    [[nodiscard]] bool isOf(std::span<const Vector> corners) const;
    [[nodiscard]] int cornerCount() const { return cornerCount_; }
    /// Groups of four corners; the last one is filled up with the last corner.
    [[nodiscard]] int groups() const { return (cornerCount_ + 3) / 4; }
    /// Group g: four x, then four y.
    [[nodiscard]] const float* group(int g) const {
        return corners_.data() + std::ptrdiff_t{8} * g;
    }
    [[nodiscard]] const std::vector<Axis>& axes() const { return axes_; }

  private:
    int cornerCount_ = 0;
    std::vector<float> corners_;
    std::vector<Axis> axes_;
};

}  // namespace bc
