// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"
#include "view/Plane.h"

#include <array>
#include <span>

namespace bc {

struct Matrix4;

/// The part of the world that the camera sees, in world units: the inside of six planes whose
/// normals point inwards. Before a view is set, nothing is outside.
class Frustum {
  public:
    enum Side { top, bottom, left, right, nearSide, farSide, sideCount };
    /// The corners at which the near or the far plane cuts the side planes, as the eye sees them.
    struct Rectangle {
        Vector topLeft;
        Vector topRight;
        Vector bottomLeft;
        Vector bottomRight;
    };

    /// angleDegrees is half of the vertical field of view, ratio is width / height. Takes effect at
    /// the next setView.
    void setInternals(float angleDegrees, float ratio, float nearDistance, float farDistance);
    /// Computes planes and corners for an eye at position that looks at lookAt. Does nothing when
    /// the two are the same place.
    void setView(const Vector& position, const Vector& lookAt, const Vector& up);
    /// Computes the planes from the product projection x modelview. The corners stay as they are.
    void setPlanes(const Matrix4& clip);

    [[nodiscard]] const std::array<Plane, sideCount>& planes() const { return planes_; }
    [[nodiscard]] const Rectangle& nearRectangle() const { return near_; }
    [[nodiscard]] const Rectangle& farRectangle() const { return far_; }

    [[nodiscard]] float angle() const { return angle_; }
    [[nodiscard]] float ratio() const { return ratio_; }
    [[nodiscard]] float nearDistance() const { return nearDistance_; }
    [[nodiscard]] float farDistance() const { return farDistance_; }
    // Half the width and height of the near and the far rectangle.
    [[nodiscard]] float nearWidth() const { return nearWidth_; }
    [[nodiscard]] float nearHeight() const { return nearHeight_; }
    [[nodiscard]] float farWidth() const { return farWidth_; }
    [[nodiscard]] float farHeight() const { return farHeight_; }

    /// Whether the convex shape with these corners is outside, that is, completely behind one of
    /// the planes. The result may be false for a shape outside near an edge of the view, but it is
    /// never true for a visible one. False without points.
    [[nodiscard]] bool isOutside(std::span<const Vector> points) const;
    /// The same for an axis-aligned rectangle at z = 0.
    [[nodiscard]] bool isRectOutside(float minX, float minY, float maxX, float maxY) const;

  private:
    std::array<Plane, sideCount> planes_{};
    Rectangle near_;
    Rectangle far_;
    float angle_ = 0;
    float ratio_ = 1;
    float nearDistance_ = 0;
    float farDistance_ = 0;
    float tangent_ = 0;
    float nearWidth_ = 0;
    float nearHeight_ = 0;
    float farWidth_ = 0;
    float farHeight_ = 0;
};

}  // namespace bc
