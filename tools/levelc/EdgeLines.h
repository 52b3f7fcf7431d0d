// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Geometry.h"

#include <array>
#include <cstddef>
#include <vector>

namespace bc::levelc {

/// A polygon whose edges are to shine.
struct EdgedPolygon {
    /// Cleaned and simple; it need not be convex.
    Polygon corners;
    /// Width of the line, with its soft sides.
    double width = 0;
    /// Polygons hide each other's edges only within one depth.
    double depth = 0;
};

/// A band along a visible part of an edge: from the start inside and outside of the polygon to
/// the end outside and inside. Corners run anticlockwise.
using EdgeBand = std::array<Point, 4>;

/// The bands of polygon number which, mitred at its corners. Parts of an edge along which another
/// of the polygons adjoins are left out, so that several make up one outline.
[[nodiscard]] std::vector<EdgeBand> edgeBands(const std::vector<EdgedPolygon>& polygons,
                                              std::size_t which);

}  // namespace bc::levelc
