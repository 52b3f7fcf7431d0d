// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Geometry.h"

namespace bc::levelc {

/// Pieces keep at most this many corners where a polygon has to be cut: the collision test tries an
/// axis for every edge.
inline constexpr std::size_t preferredCorners = 8;

/// Cuts a cleaned, simple polygon into convex ones that cover it without overlap: triangles are cut
/// off at the corner that leaves the least pointed one, then joined again across their longest
/// common edges as long as they stay convex. A convex polygon comes back as it is.
[[nodiscard]] std::vector<Polygon> cutConvex(const Polygon& polygon);

}  // namespace bc::levelc
