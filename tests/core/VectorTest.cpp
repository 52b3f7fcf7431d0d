// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/Vector.h"

#include <gtest/gtest.h>

namespace bc {
namespace {

Vector withW(float x, float y, float z, float w) {
    Vector v(x, y, z);
    v.w = w;
    return v;
}

TEST(Vector, ArithmeticCoversAllFourComponents) {
    const Vector v = withW(1, 2, 3, 4) + withW(10, 20, 30, 40);
    EXPECT_TRUE(((v - withW(1, 2, 3, 4)) * 2).equals(withW(20, 40, 60, 80)));
    EXPECT_FALSE(v.equals(withW(11, 22, 33, 5)));
    EXPECT_FALSE(withW(0, 0, 0, 1).isZero());
    EXPECT_EQ(withW(2, 4, 5, 2).length(), 7);
    EXPECT_TRUE(normalised(withW(0, 3, 0, 4)).equals(withW(0, 0.6F, 0, 0.8F)));
    EXPECT_TRUE(normalised(Vector()).isZero());
    EXPECT_EQ(planarDistance(withW(1, 1, 1, 1), withW(4, 5, 9, 9)), 5);
}

TEST(Vector, PointAlongSegmentStaysBetweenItsEnds) {
    const Vector a(10, 20);
    const Vector b(30, 60);
    struct Case {
        float t;
        bool inside;
        Vector point;
    };
    for (const Case& c : {Case{0, true, a}, Case{1, true, b}, Case{0.25F, true, {15, 30}},
                          Case{-0.01F, false, a}, Case{1.01F, false, b}}) {
        Vector out;
        EXPECT_EQ(pointAlongSegment(a, b, c.t, out), c.inside) << c.t;
        EXPECT_TRUE(out.equals(c.point)) << c.t;
    }
}

}  // namespace
}  // namespace bc
