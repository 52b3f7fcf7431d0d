// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "EdgeLines.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace bc::levelc {

namespace {

/// Sharper corners are cut off square: their mitre would reach far out.
constexpr double sharpestMitre = 0.3;

struct Interval {
    double from = 0;
    double to = 0;
};

Point unit(Point a) {
    return a * (1 / length(a));
}

/// Outwards of an anticlockwise polygon.
Point normalOf(Point from, Point to) {
    const Point along = unit(to - from);
    return {along.y, -along.x};
}

/// From a corner to the line's outer border, for a line one unit to the side of both edges; square,
/// along the edge's own normal, where the corner is too sharp.
Point mitre(Point before, Point corner, Point after, Point own) {
    const Point n1 = normalOf(before, corner);
    const Point n2 = normalOf(corner, after);
    const double k = 1 + dot(n1, n2);
    return k < sharpestMitre ? own : (n1 + n2) * (1 / k);
}

/// The part of a→b, as lengths from a, along which the edge c→d lies in the other direction.
Interval covered(Point a, Point b, Point c, Point d) {
    const Point along = unit(b - a);
    if (std::abs(cross(along, c - a)) > cornerTolerance ||
        std::abs(cross(along, d - a)) > cornerTolerance || dot(along, d - c) >= 0)
        return {};
    return {std::max(0.0, dot(along, d - a)), std::min(length(b - a), dot(along, c - a))};
}

std::vector<Interval> visibleParts(const std::vector<EdgedPolygon>& polygons, std::size_t which,
                                   Point a, Point b) {
    std::vector<Interval> hidden;
    for (std::size_t p = 0; p < polygons.size(); ++p) {
        if (p == which || polygons[p].depth != polygons[which].depth)
            continue;
        const Polygon& other = polygons[p].corners;
        for (std::size_t i = 0; i < other.size(); ++i) {
            const Interval part = covered(a, b, other[i], other[(i + 1) % other.size()]);
            if (part.to - part.from > cornerTolerance)
                hidden.push_back(part);
        }
    }
    std::sort(hidden.begin(), hidden.end(), [](const Interval& x, const Interval& y) {
        return std::pair(x.from, x.to) < std::pair(y.from, y.to);
    });
    std::vector<Interval> visible;
    double from = 0;
    for (const Interval& part : hidden) {
        if (part.from - from > cornerTolerance)
            visible.push_back({from, part.from});
        from = std::max(from, part.to);
    }
    if (length(b - a) - from > cornerTolerance)
        visible.push_back({from, length(b - a)});
    return visible;
}

}  // namespace

std::vector<EdgeBand> edgeBands(const std::vector<EdgedPolygon>& polygons, std::size_t which) {
    const Polygon& corners = polygons[which].corners;
    const double half = polygons[which].width / 2;
    const std::size_t n = corners.size();
    std::vector<std::vector<Interval>> visible;
    for (std::size_t i = 0; i < n; ++i)
        visible.push_back(visibleParts(polygons, which, corners[i], corners[(i + 1) % n]));

    std::vector<EdgeBand> bands;
    for (std::size_t i = 0; i < n; ++i) {
        const Point before = corners[(i + n - 1) % n];
        const Point a = corners[i];
        const Point b = corners[(i + 1) % n];
        const Point after = corners[(i + 2) % n];
        const Point along = unit(b - a);
        const Point normal = normalOf(a, b);
        const double size = length(b - a);
        // A line that goes on round the corner is mitred; one that ends there, or goes on along
        // another polygon, ends square.
        const std::vector<Interval>& previous = visible[(i + n - 1) % n];
        const std::vector<Interval>& next = visible[(i + 1) % n];
        const bool fromCorner = !previous.empty() && previous.back().to == length(a - before);
        const bool roundCorner = !next.empty() && next.front().from == 0;
        for (const Interval& part : visible[i]) {
            const bool mitreStart = part.from == 0 && fromCorner;
            const bool mitreEnd = part.to == size && roundCorner;
            Point atStart = (mitreStart ? mitre(before, a, b, normal) : normal) * half;
            Point atEnd = (mitreEnd ? mitre(a, b, after, normal) : normal) * half;
            const Point start = a + along * part.from;
            const Point end = a + along * part.to;
            // On an edge shorter than the line is wide the mitres of both ends would cross.
            if (std::abs(dot(atEnd - atStart, along)) > part.to - part.from - cornerTolerance)
                atStart = atEnd = normal * half;
            bands.push_back({start - atStart, start + atStart, end + atEnd, end - atEnd});
        }
    }
    return bands;
}

}  // namespace bc::levelc
