// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace bc::levelc {

/// World units, y upwards. Double, so that cutting and clipping lose nothing before the level file.
struct Point {
    double x = 0;
    double y = 0;

    friend constexpr bool operator==(const Point&, const Point&) = default;
};
constexpr Point operator-(Point a, Point b) {
    return {a.x - b.x, a.y - b.y};
}
constexpr Point operator+(Point a, Point b) {
    return {a.x + b.x, a.y + b.y};
}
constexpr Point operator*(Point a, double k) {
    return {a.x * k, a.y * k};
}
constexpr double dot(Point a, Point b) {
    return a.x * b.x + a.y * b.y;
}
constexpr double cross(Point a, Point b) {
    return a.x * b.y - a.y * b.x;
}
[[nodiscard]] double length(Point a);

using Polygon = std::vector<Point>;

/// Corners nearer than this to each other, or to the line through their neighbours, are one.
/// Far below what anyone sees (a pixel is about 0.6 units), far above the rounding of an editor.
inline constexpr double cornerTolerance = 0.01;

/// Positive when the corners run anticlockwise.
[[nodiscard]] double signedArea(const Polygon& polygon);
/// Anticlockwise, without repeated corners and without corners on the line between their
/// neighbours; may come out with fewer than three.
[[nodiscard]] Polygon cleaned(const Polygon& polygon);
/// For a cleaned polygon: no edge meets another one.
[[nodiscard]] bool isSimple(const Polygon& polygon);
/// For a cleaned, simple polygon.
[[nodiscard]] bool isConvex(const Polygon& polygon);

struct Box {
    Point low;
    Point high;
};
[[nodiscard]] Box boundsOf(const Polygon& polygon);

}  // namespace bc::levelc
