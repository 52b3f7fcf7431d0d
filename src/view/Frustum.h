// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"
#include "view/Plane.h"

#include <array>
#include <span>

namespace bc {

struct Matrix4;

/// What the camera sees, in world units: a pyramid cut off at a near and a far distance and
/// bounded by six planes whose normals point inside. Until a view is set nothing is outside.
class Frustum {
  public:
    enum Side { top, bottom, left, right, nearSide, farSide, sideCount };
    /// Corners of the near or the far rectangle as seen from the eye.
    struct Rectangle {
        Vector topLeft;
        Vector topRight;
        Vector bottomLeft;
        Vector bottomRight;
    };

    /// angleDegrees is half of the vertical field of view, ratio is width / height.
    void setInternals(float angleDegrees, float ratio, float nearDistance, float farDistance);
    /// Places the eye; a look-at point equal to the position leaves the view as it was.
    void setView(const Vector& position, const Vector& lookAt, const Vector& up);
    /// Takes the planes from projection x modelview instead; the corners stay.
    void setPlanes(const Matrix4& clip);

    [[nodiscard]] const std::array<Plane, sideCount>& planes() const { return planes_; }
    [[nodiscard]] const Rectangle& nearRectangle() const { return near_; }
    [[nodiscard]] const Rectangle& farRectangle() const { return far_; }

    [[nodiscard]] float angle() const { return angle_; }
    [[nodiscard]] float ratio() const { return ratio_; }
    [[nodiscard]] float nearDistance() const { return nearDistance_; }
    [[nodiscard]] float farDistance() const { return farDistance_; }
    // Half sizes of the two rectangles.
    [[nodiscard]] float nearWidth() const { return nearWidth_; }
    [[nodiscard]] float nearHeight() const { return nearHeight_; }
    [[nodiscard]] float farWidth() const { return farWidth_; }
    [[nodiscard]] float farHeight() const { return farHeight_; }

    /// True when one plane has all the points behind it. A shape that passes near a corner of the
    /// view may be taken as inside, never the other way round. No points are never outside.
    [[nodiscard]] bool isOutside(std::span<const Vector> points) const;
    /// The same for an upright rectangle in the plane of play (z = 0).
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
