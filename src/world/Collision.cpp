// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "world/Collision.h"

#include "core/Log.h"
#include "core/Text.h"
#include "world/Body.h"
#include "world/CollisionShape.h"

#include <cmath>
#include <emmintrin.h>
#include <string>

namespace bc {

namespace {

// Times and depths are cut to eighths: jitter below it is no contact.
constexpr float grain = 0.125F;
// Relative motion (units a step, squared) and closing speed along an axis below which there is
// none.
constexpr float minMotionSquared = 1e-6F;
constexpr float minClosing = 1e-6F;
// Surfaces this upright (y of the normal) are stood on; the upper end allows for rounding.
constexpr float minStanding = 0.5F;
constexpr float maxStanding = 1.0001F;

bool logTouches = false;

struct Interval {
    float min;
    float max;
};

Interval project(const CollisionShape& shape, float axisX, float axisY) {
    const __m128 ax = _mm_set1_ps(axisX);
    const __m128 ay = _mm_set1_ps(axisY);
    const float* corners = shape.group(0);
    __m128 along = _mm_add_ps(_mm_mul_ps(_mm_loadu_ps(corners), ax),
                              _mm_mul_ps(_mm_loadu_ps(corners + 4), ay));
    __m128 lo = along;
    __m128 hi = along;
    for (int g = 1; g < shape.groups(); ++g) {
        corners = shape.group(g);
        along = _mm_add_ps(_mm_mul_ps(_mm_loadu_ps(corners), ax),
                           _mm_mul_ps(_mm_loadu_ps(corners + 4), ay));
        lo = _mm_min_ps(lo, along);
        hi = _mm_max_ps(hi, along);
    }
    lo = _mm_min_ps(lo, _mm_movehl_ps(lo, lo));
    hi = _mm_max_ps(hi, _mm_movehl_ps(hi, hi));
    lo = _mm_min_ss(lo, _mm_shuffle_ps(lo, lo, 1));
    hi = _mm_max_ss(hi, _mm_shuffle_ps(hi, hi, 1));
    return {_mm_cvtss_f32(lo), _mm_cvtss_f32(hi)};
}

/// The test of a pair axis by axis; keeps the axis of the largest value.
class AxisSearch {
  public:
    AxisSearch(const Vector& offset, const Vector& motion)
        : offsetX_(offset.x), offsetY_(offset.y), motionX_(motion.x), motionY_(motion.y) {}

    /// False when the axis keeps the polygons apart for the whole step. length is that of the axis.
    bool passes(float x, float y, float length, const Interval& a, const Interval& b) {
        const float h = offsetX_ * x + offsetY_ * y;
        const float before = a.min + h - b.max;
        const float behind = b.min - (a.max + h);
        const float gap = before > behind ? before : behind;
        float value = 0;
        if (gap > 0) {
            const float motion = motionX_ * x + motionY_ * y;
            const float closing = before > behind ? -motion : motion;
            if (!(closing >= minClosing))
                return false;
            value = gap / closing;
            if (value > 1)
                return false;
        } else {
            value = gap / length;
        }
        if (value > value_)
            keep(value, x, y, length);
        return true;
    }

    /// The axis across the relative motion: along it nothing moves, so it either keeps the polygons
    /// apart or tells a depth. It is counted as the first axis: it wins when values are equal.
    bool passesAcrossMotion(const CollisionShape& a, const CollisionShape& b) {
        const float x = -motionY_;
        const float y = motionX_;
        const Interval ia = project(a, x, y);
        const Interval ib = project(b, x, y);
        const float h = offsetX_ * x + offsetY_ * y;
        const float before = ia.min + h - ib.max;
        const float behind = ib.min - (ia.max + h);
        const float gap = before > behind ? before : behind;
        if (gap > 0)
            return false;
        if (value_ > 0)
            return true;
        const float length = std::sqrt(x * x + y * y);
        if (gap / length >= value_)
            keep(gap / length, x, y, length);
        return true;
    }

    /// Whatever is still to come, the polygons only touch.
    [[nodiscard]] bool onlyTouches() const { return value_ > -grain && value_ < grain; }

    bool finish(SweptHit& hit) const {
        if (value_ == none)
            return false;
        // Depths are far below what an int holds.
        const float t = static_cast<float>(static_cast<int>(8 * value_)) / 8;
        if (t > -0.1F && t < 1e-6F)
            return false;
        hit.t = t;
        const bool turned = x_ * offsetX_ + y_ * offsetY_ < 0;
        const float length = turned ? -length_ : length_;
        // Adding zero makes a plain zero of a negative one, which would look odd in text.
        hit.normal = Vector(x_ / length + 0.0F, y_ / length + 0.0F);
        return true;
    }

  private:
    static constexpr float none = -std::numeric_limits<float>::infinity();

    void keep(float value, float x, float y, float length) {
        value_ = value;
        x_ = x;
        y_ = y;
        length_ = length;
    }

    float offsetX_, offsetY_;
    float motionX_, motionY_;
    float value_ = none;
    float x_ = 0;
    float y_ = 0;
    float length_ = 1;
};

void logTouch(const Body& a, const Body& b, const SweptHit& hit) {
    logLine("touch " + std::to_string(a.autoid) + ' ' + std::to_string(b.autoid) + ' ' +
            formatFloat(hit.normal.x) + ',' + formatFloat(hit.normal.y) + ' ' + formatFloat(hit.t));
}

}  // namespace

void setTouchLogging(bool on) {
    logTouches = on;
}

bool sweptTest(const CollisionShape& a, const CollisionShape& b, const Vector& offset,
               const Vector& motion, SweptHit& hit) {
    if (a.cornerCount() == 0 || b.cornerCount() == 0)
        return false;
    AxisSearch search(offset, motion);
    // Any axis that fails ends the test, so the cheap ones come first.
    if (&a == &b) {
        for (const CollisionShape::Axis& axis : a.axes())
            if (const Interval own{axis.min, axis.max};
                !search.passes(axis.x, axis.y, axis.length, own, own))
                return false;
    } else {
        for (const CollisionShape::Axis& axis : a.axes())
            if (!search.passes(axis.x, axis.y, axis.length, {axis.min, axis.max},
                               project(b, axis.x, axis.y)))
                return false;
        for (const CollisionShape::Axis& axis : b.axes())
            if (!search.passes(axis.x, axis.y, axis.length, project(a, axis.x, axis.y),
                               {axis.min, axis.max}))
                return false;
    }
    if (search.onlyTouches())
        return false;
    if (motion.x * motion.x + motion.y * motion.y > minMotionSquared &&
        !search.passesAcrossMotion(a, b))
        return false;
    return search.finish(hit);
}

bool collide(Body& a, Body& b, float dt) {
    if (&a == &b || (!a.isMassive() && !b.isMassive()))
        return false;
    SweptHit hit;
    if (!sweptTest(a.shape(), b.shape(), a.pos - b.pos, a.vel * dt - b.vel * dt, hit))
        return false;
    const bool solid = a.solid && b.solid && a.acceptsCollision(b) && b.acceptsCollision(a);
    const Vector point = a.pos + a.vel * dt * hit.t;
    if (logTouches)
        logTouch(a, b, hit);
    a.touch(b, a, hit.normal, hit.t, point);
    b.touch(a, b, hit.normal, hit.t, point);
    if (!solid || a.isGone() || b.isGone())
        return true;
    if (hit.normal.y >= minStanding && hit.normal.y <= maxStanding)
        a.contact = true;
    if (hit.t < 0)
        resolvePenetration(a, b, hit.normal, -hit.t);
    // Also after a penetration: else a body at rest gains speed from gravity without end.
    velocityResponse(a, b, hit.normal);
    return true;
}

void resolvePenetration(Body& a, Body& b, const Vector& normal, float depth) {
    const Vector way = normal * depth;
    if (!a.isMassive()) {
        b.pos -= way;
    } else if (!b.isMassive()) {
        a.pos += way;
    } else {
        a.pos += way * 0.5F;
        b.pos -= way * 0.5F;
    }
}

void velocityResponse(Body& a, Body& b, const Vector& normal) {
    const float inverse = a.invMass + b.invMass;
    if (!(inverse > 0))
        return;
    const Vector relative = a.vel - b.vel;
    const float along = relative.x * normal.x + relative.y * normal.y;
    Vector normalPart(normal.x * along, normal.y * along);
    const Vector tangential = relative - normalPart;
    if (along > 0)
        normalPart = Vector();
    const float speedSquared =
        tangential.x * tangential.x + tangential.y * tangential.y + tangential.z * tangential.z;
    const float sliding =
        speedSquared < a.staticFrictionSpeed * a.staticFrictionSpeed ? 1.0F : a.friction;
    const Vector impulse = normalPart * -(1 + a.bounce) - tangential * sliding;
    a.vel += impulse * (a.invMass / inverse);
    b.vel -= impulse * (b.invMass / inverse);
}

}  // namespace bc
