// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

namespace bc {

class Body;
class CollisionShape;

struct SweptHit {
    /// Unit vector from the second polygon towards the first.
    Vector normal;
    /// See TouchInfo::t.
    float t = 0;
};

/// Swept separating-axis test of two polygons. offset is from b's place to a's, motion what a's way
/// in this step is more than b's (world units, x and y). A hit is an impact at least an eighth of
/// the way into the step or an overlap of at least an eighth of a unit; in between the polygons
/// just touch: false.
[[nodiscard]] bool sweptTest(const CollisionShape& a, const CollisionShape& b, const Vector& offset,
                             const Vector& motion, SweptHit& hit);

/// Tests the pair over the next dt seconds and, on a hit, tells both bodies (a first) and resolves
/// the contact if it is solid. The work of one candidate of a's turn. True for a hit.
bool collide(Body& a, Body& b, float dt);
/// Pushes overlapping bodies apart by the depth along the normal, a to its front.
void resolvePenetration(Body& a, Body& b, const Vector& normal, float depth);
/// Impulse with a's restitution and friction, shared out by mass.
void velocityResponse(Body& a, Body& b, const Vector& normal);

/// While on, each contact is a log line "touch a b nx,ny t" with the bodies' ids.
void setTouchLogging(bool on);

}  // namespace bc
