// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "world/Body.h"
#include "world/Simd.h"

#include <cmath>
#include <cstdint>

namespace bc {

/// What every body goes through in every step, here to be inlined into the world's passes. None of
/// it tells the spatial index; Body's public operations of the same meaning do.
struct BodyStep {
    static void gainVelocity(Body& body, const Vector& v) {
        body.vel += v;
        const Vector& vel = body.vel;
        const float squared = vel.x * vel.x + vel.y * vel.y + vel.z * vel.z + vel.w * vel.w;
        if (!(squared <= Body::maxSpeed * Body::maxSpeed))
            body.limitSpeed();
    }

    static void applyForce(Body& body, const Vector& force, float scale) {
        if (body.isMassive())
            gainVelocity(body, force * (body.invMass * scale));
    }

    /// Body::move; false when the body does not move at all.
    static bool move(Body& body, float dt) {
        if (!body.isMassive() && !body.nonmassmover) {
            body.vel = Vector();
            return false;
        }
        body.oldpos = body.pos;
        const __m128 step = _mm_set1_ps(dt);
        const __m128 drag = _mm_set1_ps(body.inliquid ? body.liquidfriction : 1.0F);
        __m128 place = simd::load(body.pos);
        place = _mm_add_ps(place, _mm_mul_ps(_mm_mul_ps(simd::load(body.frozenvel), step), drag));
        place = _mm_add_ps(place,
                           _mm_mul_ps(_mm_mul_ps(simd::load(body.constantvelocity), step), drag));
        if (simd::within(place, Body::maxCoordinate))
            simd::store(body.pos, place);
        else
            body.stop();
        body.inliquidlastframe = body.inliquid;
        body.inliquid = false;
        sweepBounds(body, dt);
        if ((body.stepFlags_ & Body::carriesParticles) != 0)
            body.updateParticleSystems();
        return true;
    }

    /// Body::updateSweptBounds.
    static void sweepBounds(Body& body, float dt) {
        BRect& bounds = body.bounds;
        // Lanes: left, right, top, bottom; the low sides carry a minus in the sums below.
        const __m128 lowSides = _mm_castsi128_ps(_mm_set_epi32(0, INT32_MIN, 0, INT32_MIN));
        const __m128 place = simd::load(body.pos);
        const __m128 motion = simd::load(body.vel);
        const __m128 projected = _mm_add_ps(place, _mm_mul_ps(motion, _mm_set1_ps(dt)));
        _mm_storel_pi(reinterpret_cast<__m64*>(&body.projectedpos), projected);
        const __m128 extents = _mm_loadu_ps(&bounds.left);
        __m128 swept = extents;
        __m128 centre = place;
        if (_mm_movemask_ps(_mm_cmpeq_ps(motion, _mm_setzero_ps())) == 15) {
            body.sweptRadius = body.radius;
        } else {
            const __m128 d = _mm_sub_ps(place, projected);
            Vector way;
            simd::store(way, d);
            const float length =
                std::sqrt(way.x * way.x + way.y * way.y + way.z * way.z + way.w * way.w);
            body.sweptRadius =
                body.radius <= length ? length + 2 * body.radius : length + body.radius;
            // The side the body comes from grows by its way, the low one when d <= 0, else the
            // high one; the other keeps what it had.
            const __m128 dd = _mm_shuffle_ps(d, d, _MM_SHUFFLE(1, 1, 0, 0));
            const __m128 highMask = _mm_castsi128_ps(_mm_set_epi32(-1, 0, -1, 0));
            const __m128 grows = _mm_xor_ps(_mm_cmple_ps(dd, _mm_setzero_ps()), highMask);
            const __m128 grown = _mm_add_ps(extents, _mm_xor_ps(dd, lowSides));
            swept = simd::select(grows, grown, _mm_loadu_ps(&bounds.sweptLeft));
            centre = projected;
        }
        _mm_storeu_ps(&bounds.sweptLeft, swept);
        const __m128 middle = _mm_shuffle_ps(centre, centre, _MM_SHUFFLE(1, 1, 0, 0));
        _mm_storeu_ps(&bounds.minX, _mm_add_ps(middle, _mm_xor_ps(swept, lowSides)));
    }

    /// Body::updateGeometry for a polygon that has not changed.
    static void followGeometry(Body& body) {
        if ((body.angle != 0 || (body.stepFlags_ & Body::irregular) != 0) &&
            body.angle != body.geometryAngle_)
            body.turnBox();
        body.geometry_ = body.pos;
    }

    /// The line that every pass reads.
    static void prefetch(const Body& body) { prefetchLine(&body.mass); }
    static void prefetchMotion(const Body& body) { prefetchLine(&body.oldpos); }
    static void prefetchBounds(const Body& body) { prefetchLine(&body.bounds); }

  private:
    static void prefetchLine(const void* p) {
        _mm_prefetch(static_cast<const char*>(p), _MM_HINT_T0);
    }
};

}  // namespace bc
