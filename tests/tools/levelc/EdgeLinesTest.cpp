// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "EdgeLines.h"

#include <gtest/gtest.h>

#include <cmath>

namespace bc::levelc {
namespace {

Polygon box(double x, double y, double w, double h) {
    return {{x, y}, {x + w, y}, {x + w, y + h}, {x, y + h}};
}

/// Lengths along the middle of the bands, all together.
double total(const std::vector<EdgeBand>& bands) {
    double sum = 0;
    for (const EdgeBand& b : bands)
        sum += length((b[2] + b[3]) * 0.5 - (b[0] + b[1]) * 0.5);
    return sum;
}

TEST(EdgeLinesTest, RunRoundAPolygonWithMitredCorners) {
    const std::vector<EdgeBand> bands = edgeBands({{box(0, 0, 100, 50), 4, 0}}, 0);
    ASSERT_EQ(bands.size(), 4U);
    // The lower edge: its outer border is wider, its inner one narrower by half the line.
    EXPECT_EQ(bands[0][0], (Point{2, 2}));
    EXPECT_EQ(bands[0][1], (Point{-2, -2}));
    EXPECT_EQ(bands[0][2], (Point{102, -2}));
    EXPECT_EQ(bands[0][3], (Point{98, 2}));
    for (const EdgeBand& band : bands)
        EXPECT_GT(signedArea({band.begin(), band.end()}), 0);
}

TEST(EdgeLinesTest, LeaveOutWhereAnotherPolygonAdjoins) {
    const EdgedPolygon low{box(0, 0, 100, 50), 4, 0};
    const EdgedPolygon high{box(30, 50, 40, 50), 4, 0};
    // The upper edge of the low one loses 40 of its 100; the high one its whole lower edge.
    EXPECT_NEAR(total(edgeBands({low, high}, 0)), 300 - 40, 1e-9);
    EXPECT_NEAR(total(edgeBands({low, high}, 1)), 180 - 40, 1e-9);

    const EdgedPolygon behind{box(30, 50, 40, 50), 4, -1};
    EXPECT_NEAR(total(edgeBands({low, behind}, 0)), 300, 1e-9);
    // Side by side but not touching.
    EXPECT_NEAR(total(edgeBands({low, {box(30, 50.5, 40, 50), 4, 0}}, 0)), 300, 1e-9);
    // Two on top cover the edge with an overlap.
    EXPECT_NEAR(total(edgeBands({low, {box(-10, 50, 60, 9), 4, 0}, {box(40, 50, 80, 9), 4, 0}}, 0)),
                200, 1e-9);
}

TEST(EdgeLinesTest, EndSquareWhereTheOutlineGoesOnAlongTheNeighbour) {
    const std::vector<EdgedPolygon> floor{{box(0, 0, 100, 50), 4, 0}, {box(100, 0, 100, 50), 4, 0}};
    const std::vector<EdgeBand> bands = edgeBands(floor, 0);
    ASSERT_EQ(bands.size(), 3U);
    EXPECT_EQ(bands[0][2], (Point{100, -2}));
    EXPECT_EQ(bands[0][3], (Point{100, 2}));
}

TEST(EdgeLinesTest, StayConvexOnEdgesShorterThanTheLineIsWide) {
    const EdgedPolygon notched{
        {{0, 0}, {50, 0}, {51, 1}, {51, 50}, {50, 50}, {50, 52}, {0, 52}}, 8, 0};
    for (const EdgeBand& band : edgeBands({notched}, 0))
        EXPECT_TRUE(isConvex({band.begin(), band.end()})) << band[0].x << "," << band[0].y;
}

TEST(EdgeLinesTest, CutSharpCornersOff) {
    const EdgedPolygon needle{{{0, 0}, {200, -5}, {200, 5}}, 4, 0};
    for (const EdgeBand& band : edgeBands({needle}, 0)) {
        for (const Point& p : band)
            EXPECT_GT(p.x, -5);
    }
}

}  // namespace
}  // namespace bc::levelc
