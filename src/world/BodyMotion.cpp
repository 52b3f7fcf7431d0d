// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Velocity and movement of a body, told to the spatial index it is in.
#include "world/Body.h"
#include "world/BodyIndex.h"
#include "world/BodyStep.h"
#include "world/Simd.h"

#include <limits>

namespace bc {

void Body::limitSpeed() {
    float speed = vel.length();
    if (!(speed <= std::numeric_limits<float>::max())) {
        // The square overflows: bring it into range first; what is no number at all is dropped.
        if (!simd::within(simd::load(vel), std::numeric_limits<float>::max())) {
            vel = Vector();
            return;
        }
        vel *= 1e-30F;
        speed = maxSpeed + 1;
    }
    if (speed <= maxSpeed)
        return;
    vel.normalise();
    vel *= maxSpeed;
}

void Body::applyForce(const Vector& force, float scale) {
    BodyStep::applyForce(*this, force, scale);
}

void Body::addVelocity(const Vector& v) {
    if (isMassive())
        BodyStep::gainVelocity(*this, v);
}

void Body::stop() {
    vel = frozenvel = constantvelocity = Vector();
    if (!simd::within(simd::load(pos), maxCoordinate))
        pos = oldpos = Vector();
}

void Body::move(float dt) {
    if (BodyStep::move(*this, dt) && index_ != nullptr)
        index_->boundsChanged(*this);
}

}  // namespace bc
