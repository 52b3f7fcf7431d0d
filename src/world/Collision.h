// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

namespace bc {

class Body;
class CollisionShape;

/// A polygon at a place and its way in this step, world units.
struct MovingShape {
    const CollisionShape& shape;
    Vector position;
    Vector way;
};

struct SweptHit {
    /// Unit vector from the second polygon towards the first.
    Vector normal;
    /// See TouchInfo::t.
    float t = 0;
};

/// Swept separating-axis test. A hit is an impact at least an eighth of the way into the step or an
/// overlap of at least an eighth of a unit; in between the polygons just touch: false.
[[nodiscard]] bool sweptTest(const MovingShape& a, const MovingShape& b, SweptHit& hit);

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
