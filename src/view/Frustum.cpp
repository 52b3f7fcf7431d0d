// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "view/Frustum.h"

#include "view/Matrix4.h"

#include <cmath>
#include <numbers>

namespace bc {

namespace {

float dot(const Vector& a, const Vector& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Vector cross(const Vector& a, const Vector& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

Plane planeThrough(const Vector& point, Vector normal) {
    normal.normalise();
    return {normal, dot(normal, point)};
}

Frustum::Rectangle rectangleAround(const Vector& centre, const Vector& right, const Vector& up) {
    return {centre + up - right, centre + up + right, centre - up - right, centre - up + right};
}

}  // namespace

void Frustum::setInternals(float angleDegrees, float ratio, float nearDistance, float farDistance) {
    angle_ = angleDegrees;
    ratio_ = ratio;
    nearDistance_ = nearDistance;
    farDistance_ = farDistance;
    tangent_ = std::tan(angleDegrees * std::numbers::pi_v<float> / 180.0F);
    nearHeight_ = nearDistance * tangent_;
    nearWidth_ = nearHeight_ * ratio;
    farHeight_ = farDistance * tangent_;
    farWidth_ = farHeight_ * ratio;
}

void Frustum::setView(const Vector& position, const Vector& lookAt, const Vector& up) {
    const Vector eye(position.x, position.y, position.z);
    Vector forward(lookAt.x - eye.x, lookAt.y - eye.y, lookAt.z - eye.z);
    if (forward.isZero())
        return;
    forward.normalise();
    // The order of the factors makes x grow to the right for an eye that looks along growing z.
    Vector side = cross(up, forward);
    side.normalise();
    const Vector above = cross(forward, side);

    const Vector nearCentre = eye + forward * nearDistance_;
    const Vector farCentre = eye + forward * farDistance_;
    near_ = rectangleAround(nearCentre, side * nearWidth_, above * nearHeight_);
    far_ = rectangleAround(farCentre, side * farWidth_, above * farHeight_);

    // The four side planes contain the eye. Their normals are computed from directions and not from
    // the corners of the near rectangle, which are equal as floats far from the world's origin.
    const float wide = tangent_ * ratio_;
    planes_[top] = planeThrough(eye, forward * tangent_ - above);
    planes_[bottom] = planeThrough(eye, forward * tangent_ + above);
    planes_[left] = planeThrough(eye, forward * wide + side);
    planes_[right] = planeThrough(eye, forward * wide - side);
    planes_[nearSide] = planeThrough(nearCentre, forward);
    planes_[farSide] = planeThrough(farCentre, forward * -1.0F);
}

void Frustum::setPlanes(const Matrix4& clip) {
    const auto extract = [&clip](int row, double sign) {
        std::array<double, 4> p{};
        for (int column = 0; column < 4; ++column)
            p[static_cast<std::size_t>(column)] = clip.at(3, column) + sign * clip.at(row, column);
        const double length = std::sqrt(p[0] * p[0] + p[1] * p[1] + p[2] * p[2]);
        const double k = length > 0 ? 1.0 / length : 0.0;
        return Plane{Vector(static_cast<float>(p[0] * k), static_cast<float>(p[1] * k),
                            static_cast<float>(p[2] * k)),
                     static_cast<float>(-p[3] * k)};
    };
    planes_[left] = extract(0, 1);
    planes_[right] = extract(0, -1);
    planes_[bottom] = extract(1, 1);
    planes_[top] = extract(1, -1);
    planes_[nearSide] = extract(2, 1);
    planes_[farSide] = extract(2, -1);
}

bool Frustum::isOutside(std::span<const Vector> points) const {
    if (points.empty())
        return false;
    for (const Plane& plane : planes_) {
        bool allBehind = true;
        for (const Vector& point : points)
            if (plane.distance(point) >= 0) {
                allBehind = false;
                break;
            }
        if (allBehind)
            return true;
    }
    return false;
}

bool Frustum::isRectOutside(float minX, float minY, float maxX, float maxY) const {
    const std::array<Vector, 4> corners{Vector(minX, maxY), Vector(maxX, maxY), Vector(maxX, minY),
                                        Vector(minX, minY)};
    return isOutside(corners);
}

}  // namespace bc
