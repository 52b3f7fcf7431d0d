// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "Geometry.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace bc::levelc {

namespace {

/// Distance of p from the line through a and b (from a where both are one place).
double distanceFromLine(Point p, Point a, Point b) {
    const Point along = b - a;
    const double size = length(along);
    return size < cornerTolerance ? length(p - a) : std::abs(cross(along, p - a)) / size;
}

bool isSpike(Point before, Point corner, Point after) {
    return length(corner - before) < cornerTolerance ||
           distanceFromLine(corner, before, after) < cornerTolerance;
}

double side(Point a, Point b, Point p) {
    return cross(b - a, p - a);
}

bool isBetween(Point a, Point b, Point p) {
    return std::min(a.x, b.x) - cornerTolerance <= p.x &&
           p.x <= std::max(a.x, b.x) + cornerTolerance &&
           std::min(a.y, b.y) - cornerTolerance <= p.y &&
           p.y <= std::max(a.y, b.y) + cornerTolerance;
}

bool touches(Point a, Point b, Point p) {
    return isBetween(a, b, p) && distanceFromLine(p, a, b) < cornerTolerance;
}

bool segmentsMeet(Point a, Point b, Point c, Point d) {
    if (touches(a, b, c) || touches(a, b, d) || touches(c, d, a) || touches(c, d, b))
        return true;
    return (side(a, b, c) > 0) != (side(a, b, d) > 0) && (side(c, d, a) > 0) != (side(c, d, b) > 0);
}

}  // namespace

double length(Point a) {
    return std::hypot(a.x, a.y);
}

double signedArea(const Polygon& polygon) {
    double twice = 0;
    for (std::size_t i = 0; i < polygon.size(); ++i)
        twice += cross(polygon[i] - polygon[0], polygon[(i + 1) % polygon.size()] - polygon[0]);
    return twice / 2;
}

Polygon cleaned(const Polygon& polygon) {
    Polygon out = polygon;
    bool changed = true;
    while (changed && out.size() >= 3) {
        changed = false;
        for (std::size_t i = 0; i < out.size() && out.size() >= 3; ++i) {
            const Point before = out[(i + out.size() - 1) % out.size()];
            if (isSpike(before, out[i], out[(i + 1) % out.size()])) {
                out.erase(out.begin() + static_cast<std::ptrdiff_t>(i));
                changed = true;
                --i;
            }
        }
    }
    if (signedArea(out) < 0)
        std::reverse(out.begin(), out.end());
    return out;
}

bool isSimple(const Polygon& polygon) {
    const std::size_t n = polygon.size();
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = i + 2; j < n; ++j) {
            const bool neighbours = i == 0 && j == n - 1;
            if (!neighbours &&
                segmentsMeet(polygon[i], polygon[i + 1], polygon[j], polygon[(j + 1) % n]))
                return false;
        }
    }
    return true;
}

bool isConvex(const Polygon& polygon) {
    const std::size_t n = polygon.size();
    for (std::size_t i = 0; i < n; ++i) {
        if (side(polygon[i], polygon[(i + 1) % n], polygon[(i + 2) % n]) <= 0)
            return false;
    }
    return true;
}

Box boundsOf(const Polygon& polygon) {
    Box box{polygon.front(), polygon.front()};
    for (const Point& p : polygon) {
        box.low = {std::min(box.low.x, p.x), std::min(box.low.y, p.y)};
        box.high = {std::max(box.high.x, p.x), std::max(box.high.y, p.y)};
    }
    return box;
}

}  // namespace bc::levelc
