// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "ConvexCut.h"

#include <algorithm>
#include <cstddef>

namespace bc::levelc {

namespace {

/// Corners by their number in the polygon that is cut, anticlockwise.
using Piece = std::vector<std::size_t>;

double turn(Point a, Point b, Point c) {
    return cross(b - a, c - b);
}

bool inside(Point a, Point b, Point c, Point p) {
    return turn(a, b, p) >= 0 && turn(b, c, p) >= 0 && turn(c, a, p) >= 0;
}

/// How far a triangle is from a splinter: its smallest height against its longest side.
double roundness(Point a, Point b, Point c) {
    const double longest = std::max({length(b - a), length(c - b), length(a - c)});
    return turn(a, b, c) / (longest * longest);
}

/// -1 where no triangle can be cut off at corner i of the rest.
double earQuality(const Polygon& polygon, const Piece& rest, std::size_t i) {
    const std::size_t n = rest.size();
    const Point a = polygon[rest[(i + n - 1) % n]];
    const Point b = polygon[rest[i]];
    const Point c = polygon[rest[(i + 1) % n]];
    if (turn(a, b, c) <= 0)
        return -1;
    for (std::size_t k = 2; k + 1 < n; ++k) {
        if (inside(a, b, c, polygon[rest[(i + k) % n]]))
            return -1;
    }
    return roundness(a, b, c);
}

std::vector<Piece> triangulate(const Polygon& polygon) {
    Piece rest;
    for (std::size_t i = 0; i < polygon.size(); ++i)
        rest.push_back(i);
    std::vector<Piece> triangles;
    while (rest.size() > 3) {
        std::size_t best = 0;
        double bestQuality = -1;
        for (std::size_t i = 0; i < rest.size(); ++i) {
            const double quality = earQuality(polygon, rest, i);
            if (quality > bestQuality) {
                bestQuality = quality;
                best = i;
            }
        }
        const std::size_t n = rest.size();
        triangles.push_back({rest[(best + n - 1) % n], rest[best], rest[(best + 1) % n]});
        rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(best));
    }
    triangles.push_back(rest);
    return triangles;
}

/// A cut between two pieces, from corner to corner.
struct Cut {
    std::size_t from = 0;
    std::size_t to = 0;
    double size = 0;
};

std::ptrdiff_t findEdge(const Piece& piece, std::size_t from, std::size_t to) {
    for (std::size_t i = 0; i < piece.size(); ++i) {
        if (piece[i] == from && piece[(i + 1) % piece.size()] == to)
            return static_cast<std::ptrdiff_t>(i);
    }
    return -1;
}

/// The two pieces as one, without their common edge.
Piece joined(const Piece& a, std::ptrdiff_t edgeOfA, const Piece& b, std::ptrdiff_t edgeOfB) {
    Piece out;
    for (std::size_t i = 1; i <= a.size(); ++i)
        out.push_back(a[(static_cast<std::size_t>(edgeOfA) + i) % a.size()]);
    for (std::size_t i = 2; i < b.size(); ++i)
        out.push_back(b[(static_cast<std::size_t>(edgeOfB) + i) % b.size()]);
    return out;
}

bool isConvexPiece(const Polygon& polygon, const Piece& piece) {
    const std::size_t n = piece.size();
    for (std::size_t i = 0; i < n; ++i) {
        if (turn(polygon[piece[i]], polygon[piece[(i + 1) % n]], polygon[piece[(i + 2) % n]]) < 0)
            return false;
    }
    return true;
}

void removeCut(const Polygon& polygon, std::vector<Piece>& pieces, const Cut& cut) {
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const std::ptrdiff_t edge = findEdge(pieces[i], cut.from, cut.to);
        if (edge < 0)
            continue;
        for (std::size_t j = 0; j < pieces.size(); ++j) {
            const std::ptrdiff_t back = findEdge(pieces[j], cut.to, cut.from);
            if (back < 0)
                continue;
            Piece both = joined(pieces[i], edge, pieces[j], back);
            if (both.size() > preferredCorners || !isConvexPiece(polygon, both))
                return;
            pieces[i] = std::move(both);
            pieces.erase(pieces.begin() + static_cast<std::ptrdiff_t>(j));
            return;
        }
        return;
    }
}

std::vector<Cut> cutsOf(const Polygon& polygon, const std::vector<Piece>& triangles) {
    std::vector<Cut> cuts;
    for (const Piece& t : triangles) {
        for (std::size_t i = 0; i < t.size(); ++i) {
            const std::size_t from = t[i];
            const std::size_t to = t[(i + 1) % t.size()];
            const bool outer = (from + 1) % polygon.size() == to;
            if (!outer && from < to)
                cuts.push_back({from, to, length(polygon[to] - polygon[from])});
        }
    }
    std::stable_sort(cuts.begin(), cuts.end(),
                     [](const Cut& a, const Cut& b) { return a.size > b.size; });
    return cuts;
}

}  // namespace

std::vector<Polygon> cutConvex(const Polygon& polygon) {
    if (polygon.size() < 4 || isConvex(polygon))
        return {polygon};
    std::vector<Piece> pieces = triangulate(polygon);
    for (const Cut& cut : cutsOf(polygon, pieces))
        removeCut(polygon, pieces, cut);

    std::vector<Polygon> out;
    for (const Piece& piece : pieces) {
        Polygon& corners = out.emplace_back();
        for (const std::size_t i : piece)
            corners.push_back(polygon[i]);
    }
    return out;
}

}  // namespace bc::levelc
