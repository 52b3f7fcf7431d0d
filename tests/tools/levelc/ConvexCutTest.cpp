// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "ConvexCut.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>

namespace bc::levelc {
namespace {

bool holds(const Polygon& convex, Point p) {
    for (std::size_t i = 0; i < convex.size(); ++i) {
        if (cross(convex[(i + 1) % convex.size()] - convex[i], p - convex[i]) < 0)
            return false;
    }
    return true;
}

/// A wreath of corners whose distance from the middle jumps about.
Polygon wreath(int corners, unsigned seed) {
    Polygon out;
    for (int i = 0; i < corners; ++i) {
        seed = seed * 1664525U + 1013904223U;
        const double r = 40 + (seed >> 16) % 160;
        const double a = 2 * std::numbers::pi * i / corners;
        out.push_back({1000 + std::round(r * std::cos(a)), 700 + std::round(r * std::sin(a))});
    }
    return out;
}

Polygon comb(int teeth) {
    Polygon out{{0, 0}, {20.0 * teeth, 0}};
    for (int i = teeth - 1; i >= 0; --i) {
        out.push_back({20.0 * i + 20, 50});
        out.push_back({20.0 * i + 12, 50});
        out.push_back({20.0 * i + 12, 10});
        out.push_back({20.0 * i, 10});
    }
    return out;
}

struct CutCase {
    std::string name;
    Polygon polygon;
};

class ConvexCut : public testing::TestWithParam<CutCase> {};

TEST_P(ConvexCut, CoversThePolygonWithConvexPiecesThatDoNotOverlap) {
    const Polygon polygon = cleaned(GetParam().polygon);
    ASSERT_TRUE(isSimple(polygon));
    const std::vector<Polygon> pieces = cutConvex(polygon);
    double area = 0;
    for (const Polygon& piece : pieces) {
        EXPECT_GE(piece.size(), 3U);
        EXPECT_LE(piece.size(), preferredCorners);
        for (std::size_t i = 0; i < piece.size(); ++i)
            EXPECT_GE(cross(piece[(i + 1) % piece.size()] - piece[i],
                            piece[(i + 2) % piece.size()] - piece[(i + 1) % piece.size()]),
                      0);
        EXPECT_GT(signedArea(piece), 0);
        area += signedArea(piece);
    }
    EXPECT_NEAR(area, signedArea(polygon), 1e-6 * area);

    // Off the grid that the corners lie on, so that no probe hits an edge.
    const Box box = boundsOf(polygon);
    for (double x = box.low.x + 0.317; x < box.high.x; x += 3.7) {
        for (double y = box.low.y + 0.219; y < box.high.y; y += 4.3) {
            int found = 0;
            for (const Polygon& piece : pieces)
                found += holds(piece, {x, y}) ? 1 : 0;
            ASSERT_LE(found, 1) << x << "," << y;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, ConvexCut,
    testing::Values(CutCase{"angle", {{0, 0}, {90, 0}, {90, 30}, {30, 30}, {30, 90}, {0, 90}}},
                    CutCase{"clockwise", {{0, 90}, {30, 90}, {30, 30}, {90, 30}, {90, 0}, {0, 0}}},
                    CutCase{"frame with a slit",
                            {{0, 0},
                             {90, 0},
                             {90, 90},
                             {46, 90},
                             {46, 60},
                             {70, 60},
                             {70, 20},
                             {20, 20},
                             {20, 60},
                             {44, 60},
                             {44, 90},
                             {0, 90}}},
                    CutCase{"arrow", {{0, 0}, {100, 50}, {0, 100}, {20, 50}}},
                    CutCase{"comb", comb(12)}, CutCase{"small wreath", wreath(12, 3)},
                    CutCase{"wreath", wreath(40, 8)}, CutCase{"large wreath", wreath(64, 77)}),
    [](const auto& cut) {
        std::string name = cut.param.name;
        for (char& c : name)
            c = c == ' ' ? '_' : c;
        return name;
    });

TEST(ConvexCutTest, LeavesConvexPolygonsWhole) {
    Polygon round;
    for (int i = 0; i < 16; ++i)
        round.push_back({100 * std::cos(0.3926991 * i), 100 * std::sin(0.3926991 * i)});
    EXPECT_EQ(cutConvex(cleaned(round)), std::vector<Polygon>{cleaned(round)});
}

TEST(ConvexCutTest, JoinsTriangles) {
    // Two boxes make an angle; triangles alone would be four.
    EXPECT_EQ(cutConvex({{0, 0}, {90, 0}, {90, 30}, {30, 30}, {30, 90}, {0, 90}}).size(), 2U);
}

TEST(GeometryTest, CleansCornersThatChangeNothing) {
    const Polygon box{{0, 0}, {10, 0}, {10, 10}, {0, 10}};
    EXPECT_EQ(cleaned({{0, 0}, {0, 0}, {5, 0.001}, {10, 0}, {10, 10}, {0, 10}, {0, 5}}), box);
    EXPECT_LT(cleaned({{0, 0}, {10, 0}, {20, 0}, {30, 0}}).size(), 3U);
    EXPECT_LT(cleaned({{5, 5}, {5, 5}, {5, 5}}).size(), 3U);
    // A needle that runs out and back on the same line.
    EXPECT_EQ(cleaned({{0, 0}, {10, 0}, {30, 0}, {10, 0}, {10, 10}, {0, 10}}).size(), 4U);
}

TEST(GeometryTest, SeesPolygonsThatMeetThemselves) {
    EXPECT_TRUE(isSimple({{0, 0}, {90, 0}, {90, 30}, {30, 30}, {30, 90}, {0, 90}}));
    EXPECT_FALSE(isSimple({{0, 0}, {10, 10}, {10, 0}, {0, 10}}));
    // A corner on another edge.
    EXPECT_FALSE(isSimple({{0, 0}, {20, 0}, {20, 20}, {10, 0}, {0, 20}}));
    // The same corner twice, not in a row.
    EXPECT_FALSE(isSimple({{0, 0}, {10, 0}, {5, 5}, {10, 10}, {0, 10}, {5, 5}}));
}

}  // namespace
}  // namespace bc::levelc
