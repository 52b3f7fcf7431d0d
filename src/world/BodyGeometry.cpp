// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// A body's polygon, the places of its corners and its bounds.
#include "world/Body.h"
#include "world/BodyIndex.h"
#include "world/BodyStep.h"
#include "world/CollisionShape.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace bc {

namespace {

constexpr float pi = 3.14159265F;

struct Turn {
    explicit Turn(float angle) : cosine(std::cos(angle)), sine(std::sin(angle)) {}
    [[nodiscard]] float x(const Vector& v) const { return v.x * cosine + v.y * sine; }
    [[nodiscard]] float y(const Vector& v) const { return v.y * cosine - v.x * sine; }
    float cosine;
    float sine;
};

float cross(const Vector& a, const Vector& b) {
    return a.x * b.y - b.x * a.y;
}

}  // namespace

void Body::clearGeometry() {
    localVertices.clear();
    worldVertices_.clear();
    colours.clear();
    texCoords.clear();
    updateGeometry();
}

void Body::makeBox(float width, float height, const RGBAColour& colour) {
    const float w = width / 2;
    const float h = height / 2;
    localVertices = {Vector(-w, -h), Vector(w, -h), Vector(w, h), Vector(-w, h)};
    colours.assign(4, colour);
    texCoords = {TexCoord(0, 0), TexCoord(1, 0), TexCoord(1, 1), TexCoord(0, 1)};
    updateGeometry();
}

void Body::makeBox(float width, float height) {
    makeBox(width, height, RGBAColour(255, 255, 255, 255));
}

void Body::makeCircle(float circleRadius) {
    localVertices.clear();
    for (int i = 0; i < circleCorners; ++i) {
        const float a = 2 * pi * static_cast<float>(i) / circleCorners;
        localVertices.emplace_back(-std::cos(a) * circleRadius, -std::sin(a) * circleRadius);
    }
    colours.assign(circleCorners, RGBAColour(255, 255, 255, 255));
    texCoords.clear();
    updateGeometry();
}

void Body::makeDefaultShape() {
    makeBox(defaultWidth, defaultHeight);
}

void Body::addWorldVertex(float x, float y, float z) {
    (void)worldVertices();
    worldVertices_.emplace_back(x, y, z);
}

void Body::makeLocalVertices() {
    (void)worldVertices();
    localVertices.resize(worldVertices_.size());
    for (std::size_t i = 0; i < localVertices.size(); ++i) {
        localVertices[i].x = worldVertices_[i].x - pos.x;
        localVertices[i].y = worldVertices_[i].y - pos.y;
    }
}

void Body::turnBox() {
    const Turn turn(angle);
    geometryAngle_ = angle;
    constexpr float none = std::numeric_limits<float>::infinity();
    geometryBox_ = {none, -none, none, -none};
    for (const Vector& corner : localVertices) {
        geometryBox_.minX = std::min(geometryBox_.minX, turn.x(corner));
        geometryBox_.maxX = std::max(geometryBox_.maxX, turn.x(corner));
        geometryBox_.minY = std::min(geometryBox_.minY, turn.y(corner));
        geometryBox_.maxY = std::max(geometryBox_.maxY, turn.y(corner));
    }
    compareBox();
}

void Body::compareBox() {
    const bool regular = geometryAngle_ == 0 && bounds.left == -geometryBox_.minX &&
                         bounds.right == geometryBox_.maxX && bounds.top == -geometryBox_.minY &&
                         bounds.bottom == geometryBox_.maxY;
    stepFlags_ =
        static_cast<std::uint8_t>(regular ? stepFlags_ & ~irregular : stepFlags_ | irregular);
}

void Body::updateGeometry() {
    if (!shape_->isOf(localVertices))
        shape_ = CollisionShape::of(localVertices);
    turnBox();
    geometry_ = pos;
    cornersStale_ = true;
    if (index_ != nullptr)
        index_->geometryChanged(*this);
}

const std::vector<Vector>& Body::worldVertices() const {
    if (cornersStale_ || cornersAt_.x != geometry_.x || cornersAt_.y != geometry_.y ||
        cornersAngle_ != geometryAngle_) {
        cornersStale_ = false;
        cornersAt_ = geometry_;
        cornersAngle_ = geometryAngle_;
        const Turn turn(geometryAngle_);
        worldVertices_.resize(localVertices.size());
        for (std::size_t i = 0; i < worldVertices_.size(); ++i) {
            worldVertices_[i].x = turn.x(localVertices[i]) + geometry_.x;
            worldVertices_[i].y = turn.y(localVertices[i]) + geometry_.y;
        }
    }
    return worldVertices_;
}

// Areas and centres are worked out relative to the first corner, where the numbers are small.

float Body::polygonArea() const {
    const std::vector<Vector>& corners = worldVertices();
    float twice = 0;
    for (std::size_t i = 2; i < corners.size(); ++i)
        twice += cross(corners[i - 1] - corners[0], corners[i] - corners[0]);
    return twice / 2;
}

Vector Body::centroid() const {
    const std::vector<Vector>& corners = worldVertices();
    if (corners.empty())
        return {};
    const Vector origin(corners[0].x, corners[0].y);
    float twice = 0;
    Vector weighted;
    Vector sum;
    float extent = 0;
    for (std::size_t i = 1; i < corners.size(); ++i) {
        const Vector b(corners[i].x - origin.x, corners[i].y - origin.y);
        const Vector a(corners[i - 1].x - origin.x, corners[i - 1].y - origin.y);
        const float weight = cross(a, b);
        twice += weight;
        weighted += (a + b) * weight;
        sum += b;
        extent = std::max({extent, std::fabs(b.x), std::fabs(b.y)});
    }
    // Corners on a line, or so near to it that the centre would be lost in rounding.
    if (std::fabs(twice) <= 2e-6F * extent * extent)
        return origin + sum * (1 / static_cast<float>(corners.size()));
    return origin + weighted * (1 / (3 * twice));
}

void Body::computeBounds() {
    const std::vector<Vector>& corners = worldVertices();
    for (const Vector& corner : corners)
        radius = std::max(radius, planarDistance(pos, corner));
    const bool inPlace = geometry_.x == pos.x && geometry_.y == pos.y;
    if (corners.empty()) {
        bounds.left = bounds.right = bounds.top = bounds.bottom = 0;
    } else if (inPlace && corners.size() == localVertices.size()) {
        // The same without the rounding of far away places.
        bounds.left = -geometryBox_.minX;
        bounds.right = geometryBox_.maxX;
        bounds.top = -geometryBox_.minY;
        bounds.bottom = geometryBox_.maxY;
    } else {
        const auto [minX, maxX] =
            std::minmax_element(corners.begin(), corners.end(),
                                [](const Vector& a, const Vector& b) { return a.x < b.x; });
        const auto [minY, maxY] =
            std::minmax_element(corners.begin(), corners.end(),
                                [](const Vector& a, const Vector& b) { return a.y < b.y; });
        bounds.left = pos.x - minX->x;
        bounds.right = maxX->x - pos.x;
        bounds.top = pos.y - minY->y;
        bounds.bottom = maxY->y - pos.y;
    }
    bounds.sweptLeft = bounds.left;
    bounds.sweptRight = bounds.right;
    bounds.sweptTop = bounds.top;
    bounds.sweptBottom = bounds.bottom;
    compareBox();
    updateSweptBounds(0);
    if (index_ != nullptr)
        index_->geometryChanged(*this);
}

void Body::updateSweptBounds(float dt) {
    BodyStep::sweepBounds(*this, dt);
    if (index_ != nullptr)
        index_->boundsChanged(*this);
}

bool Body::overlaps(const Body& other) const {
    const BRect& a = bounds;
    const BRect& b = other.bounds;
    return a.minY < b.maxY && a.maxY > b.minY && a.minX < b.maxX && a.maxX > b.minX;
}

}  // namespace bc
