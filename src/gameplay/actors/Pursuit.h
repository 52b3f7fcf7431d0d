// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class Body;
class GameBody;

/// Turns a body's velocity towards a target: the acceleration is added at once (mostly sideways),
/// and the result is no faster than maxSpeed. Units a second.
void approach(Body& body, const Body& target, float acceleration, float maxSpeed);

/// The nearest body of the enemy side within the radius, other than the body itself; null for none.
[[nodiscard]] GameBody* nearestEnemy(const Body& body, float radius);

}  // namespace bc
