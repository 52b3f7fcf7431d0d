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
    AxisSearch(float offsetX, float offsetY, float motionX, float motionY)
        : offsetX_(offsetX), offsetY_(offsetY), motionX_(motionX), motionY_(motionY) {}

    /// False when the axis keeps the polygons apart for the whole step. length is that of the axis.
    bool passes(float x, float y, float length, const Interval& a, const Interval& b) {
        const float h = offsetX_ * x + offsetY_ * y;
        const float gapBefore = a.min + h - b.max;
        const float gapBehind = b.min - (a.max + h);
        float value = 0;
        if (gapBefore > 0 || gapBehind > 0) {
            const float closing = motionX_ * x + motionY_ * y;
            if (std::fabs(closing) < minClosing)
                return false;
            const float ta = -gapBefore / closing;
            const float tb = gapBehind / closing;
            const float first = ta < tb ? ta : tb;
            value = first > 0 ? first : (ta < tb ? tb : ta);
            if (value < 0 || value > 1)
                return false;
        } else {
            value = (gapBefore > gapBehind ? gapBefore : gapBehind) / length;
        }
        if (!found_ || value > value_) {
            found_ = true;
            value_ = value;
            x_ = x;
            y_ = y;
            length_ = length;
        }
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
        const float gapBefore = ia.min + h - ib.max;
        const float gapBehind = ib.min - (ia.max + h);
        if (gapBefore > 0 || gapBehind > 0)
            return false;
        if (found_ && value_ > 0)
            return true;
        const float length = std::sqrt(x * x + y * y);
        const float value = (gapBefore > gapBehind ? gapBefore : gapBehind) / length;
        if (!found_ || value >= value_) {
            found_ = true;
            value_ = value;
            x_ = x;
            y_ = y;
            length_ = length;
        }
        return true;
    }

    /// Whatever is still to come, the polygons only touch.
    [[nodiscard]] bool onlyTouches() const { return found_ && value_ > -grain && value_ < grain; }

    bool finish(SweptHit& hit) const {
        if (!found_)
            return false;
        const float t = std::trunc(8 * value_) / 8;
        if (t > -0.1F && t < 1e-6F)
            return false;
        hit.t = t;
        hit.normal = Vector(x_ / length_, y_ / length_);
        if (hit.normal.x * offsetX_ + hit.normal.y * offsetY_ < 0)
            hit.normal = Vector(-hit.normal.x, -hit.normal.y);
        return true;
    }

  private:
    float offsetX_, offsetY_;
    float motionX_, motionY_;
    bool found_ = false;
    float value_ = 0;
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

bool sweptTest(const MovingShape& a, const MovingShape& b, SweptHit& hit) {
    if (a.shape.cornerCount() == 0 || b.shape.cornerCount() == 0)
        return false;
    const float motionX = a.way.x - b.way.x;
    const float motionY = a.way.y - b.way.y;
    AxisSearch search(a.position.x - b.position.x, a.position.y - b.position.y, motionX, motionY);
    // Any axis that fails ends the test, so the cheap ones come first.
    if (&a.shape == &b.shape) {
        for (const CollisionShape::Axis& axis : a.shape.axes())
            if (const Interval own{axis.min, axis.max};
                !search.passes(axis.x, axis.y, axis.length, own, own))
                return false;
    } else {
        for (const CollisionShape::Axis& axis : a.shape.axes())
            if (!search.passes(axis.x, axis.y, axis.length, {axis.min, axis.max},
                               project(b.shape, axis.x, axis.y)))
                return false;
        for (const CollisionShape::Axis& axis : b.shape.axes())
            if (!search.passes(axis.x, axis.y, axis.length, project(a.shape, axis.x, axis.y),
                               {axis.min, axis.max}))
                return false;
    }
    if (search.onlyTouches())
        return false;
    if (motionX * motionX + motionY * motionY > minMotionSquared &&
        !search.passesAcrossMotion(a.shape, b.shape))
        return false;
    return search.finish(hit);
}

bool collide(Body& a, Body& b, float dt) {
    if (&a == &b || (!a.isMassive() && !b.isMassive()))
        return false;
    SweptHit hit;
    if (!sweptTest({a.shape(), a.pos, a.vel * dt}, {b.shape(), b.pos, b.vel * dt}, hit))
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
