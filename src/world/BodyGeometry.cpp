// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// A body's polygon, the places of its corners and its bounds.
#include "world/Body.h"
#include "world/CollisionShape.h"
#include "world/QuadTree.h"
#include "world/Simd.h"

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
    constexpr float none = std::numeric_limits<float>::infinity();
    boxMinX_ = boxMinY_ = none;
    boxMaxX_ = boxMaxY_ = -none;
    for (const Vector& corner : localVertices) {
        boxMinX_ = std::min(boxMinX_, turn.x(corner));
        boxMaxX_ = std::max(boxMaxX_, turn.x(corner));
        boxMinY_ = std::min(boxMinY_, turn.y(corner));
        boxMaxY_ = std::max(boxMaxY_, turn.y(corner));
    }
    geometryAngle_ = angle;
}

void Body::followGeometry() {
    if (angle != geometryAngle_)
        turnBox();
    geometryX_ = pos.x;
    geometryY_ = pos.y;
    worldVerticesStale_ = true;
}

void Body::updateGeometry() {
    if (!shape_->isOf(localVertices))
        shape_ = CollisionShape::of(localVertices);
    turnBox();
    geometryX_ = pos.x;
    geometryY_ = pos.y;
    worldVerticesStale_ = true;
    if (node_ != nullptr)
        QuadTree::geometryChanged(*this);
}

const std::vector<Vector>& Body::worldVertices() const {
    if (worldVerticesStale_) {
        worldVerticesStale_ = false;
        const Turn turn(geometryAngle_);
        worldVertices_.resize(localVertices.size());
        for (std::size_t i = 0; i < worldVertices_.size(); ++i) {
            worldVertices_[i].x = turn.x(localVertices[i]) + geometryX_;
            worldVertices_[i].y = turn.y(localVertices[i]) + geometryY_;
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
    const Vector first = corners.empty() ? pos : corners.front();
    float minX = first.x;
    float maxX = first.x;
    float minY = first.y;
    float maxY = first.y;
    for (const Vector& corner : corners) {
        minX = std::min(minX, corner.x);
        maxX = std::max(maxX, corner.x);
        minY = std::min(minY, corner.y);
        maxY = std::max(maxY, corner.y);
        radius = std::max(radius, planarDistance(pos, corner));
    }
    bounds.left = bounds.sweptLeft = pos.x - minX;
    bounds.right = bounds.sweptRight = maxX - pos.x;
    bounds.top = bounds.sweptTop = pos.y - minY;
    bounds.bottom = bounds.sweptBottom = maxY - pos.y;
    updateSweptBounds(0);
}

void Body::updateSweptBounds(float dt) {
    sweepBounds(dt);
    if (node_ != nullptr)
        QuadTree::boundsChanged(*this);
}

void Body::sweepBounds(float dt) {
    // Lanes: left, right, top, bottom of the box; the low sides carry a minus in the sums below.
    const __m128 lowSides = _mm_castsi128_ps(_mm_set_epi32(0, INT32_MIN, 0, INT32_MIN));
    const __m128 place = simd::load(pos);
    const __m128 motion = simd::load(vel);
    const __m128 projected = _mm_add_ps(place, _mm_mul_ps(motion, _mm_set1_ps(dt)));
    simd::store(projectedpos, projected);
    const __m128 extents = _mm_loadu_ps(&bounds.left);
    __m128 swept = extents;
    __m128 centre = place;
    if (_mm_movemask_ps(_mm_cmpeq_ps(motion, _mm_setzero_ps())) == 15) {
        sweptRadius = radius;
    } else {
        const __m128 d = _mm_sub_ps(place, projected);
        const float way = Vector(pos - projectedpos).length();
        sweptRadius = radius <= way ? way + 2 * radius : way + radius;
        // The side the body comes from grows by its way; the other keeps what it had.
        const __m128 dd = _mm_shuffle_ps(d, d, _MM_SHUFFLE(1, 1, 0, 0));
        const __m128 forward = _mm_cmple_ps(dd, _mm_setzero_ps());
        const __m128 allSet = _mm_castsi128_ps(_mm_set1_epi32(-1));
        const __m128 lowMask = _mm_castsi128_ps(_mm_set_epi32(0, -1, 0, -1));
        // Low sides grow when d <= 0, high sides when d > 0.
        const __m128 grows = _mm_xor_ps(_mm_xor_ps(forward, lowMask), allSet);
        const __m128 grown = _mm_add_ps(extents, _mm_xor_ps(dd, lowSides));
        swept = simd::select(grows, grown, _mm_loadu_ps(&bounds.sweptLeft));
        centre = projected;
    }
    _mm_storeu_ps(&bounds.sweptLeft, swept);
    simd::store(bounds.centre, centre);
    const __m128 middle = _mm_shuffle_ps(centre, centre, _MM_SHUFFLE(1, 1, 0, 0));
    _mm_storeu_ps(&bounds.minX, _mm_add_ps(middle, _mm_xor_ps(swept, lowSides)));
}

bool Body::overlaps(const Body& other) const {
    const BRect& a = bounds;
    const BRect& b = other.bounds;
    return a.minY < b.maxY && a.maxY > b.minY && a.minX < b.maxX && a.maxX > b.minX;
}

}  // namespace bc
