// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "view/Frustum.h"
#include "view/Matrix4.h"

#include <gtest/gtest.h>

#include <string>

namespace bc {
namespace {

// The view of the game at 4:3: at distance 256 it shows 256 units up and down from the centre.
Frustum viewFrom(float x, float y, float z) {
    Frustum frustum;
    frustum.setInternals(45, 4.0F / 3.0F, 0.1F, 4096);
    frustum.setView(Vector(x, y, z), Vector(x, y, -z), Vector(0, 1, 0));
    return frustum;
}

TEST(Frustum, NothingIsOutsideBeforeAViewIsSet) {
    const Frustum frustum;
    EXPECT_FALSE(frustum.isRectOutside(1e6F, 1e6F, 2e6F, 2e6F));
}

TEST(Frustum, ShowsExactlyWhatTheCameraDistanceGrants) {
    struct Case {
        const char* what;
        Vector camera;
        float minX, minY, maxX, maxY;
        bool outside;
    };
    const Case cases[] = {
        {"centre", {0, 0, -256}, -8, -8, 8, 8, false},
        {"just inside above", {0, 0, -256}, -8, 255, 8, 300, false},
        {"just above", {0, 0, -256}, -8, 257, 8, 300, true},
        {"just below", {0, 0, -256}, -8, -300, 8, -257, true},
        {"just inside right", {0, 0, -256}, 340, -8, 400, 8, false},
        {"just right", {0, 0, -256}, 343, -8, 400, 8, true},
        {"just left", {0, 0, -256}, -400, -8, -343, 8, true},
        {"larger than the view", {0, 0, -256}, -5000, -5000, 5000, 5000, false},
        {"far from the origin, just inside", {9000, -9000, -256}, 9340, -9008, 9400, -8992, false},
        {"far from the origin, just outside", {9000, -9000, -256}, 9343, -9008, 9400, -8992, true},
        {"map view sees four times as far", {0, 0, -1024}, -8, 1000, 8, 1100, false},
        {"and not farther", {0, 0, -1024}, -8, 1026, 8, 1100, true},
    };
    for (const Case& c : cases) {
        const Frustum frustum = viewFrom(c.camera.x, c.camera.y, c.camera.z);
        EXPECT_EQ(frustum.isRectOutside(c.minX, c.minY, c.maxX, c.maxY), c.outside) << c.what;
    }
}

TEST(Frustum, PlanesLookInsideAndCarryTheCornersOfBothRectangles) {
    const Frustum frustum = viewFrom(100, -50, -256);
    EXPECT_NEAR(frustum.nearHeight(), 0.1F, 1e-6F);
    EXPECT_NEAR(frustum.farWidth(), 4096 * 4.0F / 3.0F, 0.01F);
    const Vector inside(100, -50, 0);
    for (const Plane& plane : frustum.planes()) {
        EXPECT_GT(plane.distance(inside), 0);
        EXPECT_NEAR(plane.normal.length(), 1, 1e-5F);
    }
    const auto& planes = frustum.planes();
    EXPECT_NEAR(planes[Frustum::top].distance(frustum.farRectangle().topLeft), 0, 0.01F);
    EXPECT_NEAR(planes[Frustum::left].distance(frustum.farRectangle().topLeft), 0, 0.01F);
    EXPECT_NEAR(planes[Frustum::right].distance(frustum.farRectangle().bottomRight), 0, 0.01F);
    EXPECT_NEAR(planes[Frustum::bottom].distance(frustum.nearRectangle().bottomLeft), 0, 0.001F);
    EXPECT_LT(frustum.farRectangle().topLeft.x, frustum.farRectangle().topRight.x);
}

TEST(Frustum, PlanesFromTheMatricesAgreeWithThoseOfTheCamera) {
    Matrix4 modelview;
    modelview.scale(0.015);
    modelview.translate(-700, 300, -256);
    Frustum frustum = viewFrom(700, -300, -256);
    Frustum fromMatrices;
    fromMatrices.setPlanes(Matrix4::perspective(90, 4.0 / 3.0, 0.1, 4096) * modelview);
    for (const Vector& p : {Vector(700, -300), Vector(1041, -300), Vector(1042, -300),
                            Vector(358, -300), Vector(700, -43), Vector(700, -557)}) {
        const Vector points[] = {p};
        EXPECT_EQ(frustum.isOutside(points), fromMatrices.isOutside(points)) << p.toString();
    }
    for (const Plane& plane : fromMatrices.planes())
        EXPECT_NEAR(plane.normal.length(), 1, 1e-5F);
}

TEST(Plane, MeetsALineWhereItCrosses) {
    const Plane ground{Vector(0, 0, 1), 2};
    const auto hit = ground.intersect(Vector(5, 5, 0), Vector(5, 5, 8));
    ASSERT_TRUE(hit);
    EXPECT_FLOAT_EQ(*hit, 0.25F);
    EXPECT_FALSE(ground.intersect(Vector(0, 0, 1), Vector(9, 9, 1)));
    EXPECT_FLOAT_EQ(ground.distance(Vector(1, 1, -1)), -3);
}

TEST(Matrix4, InverseUndoesAnyChainAndRefusesSingularOnes) {
    Matrix4 chain = Matrix4::perspective(90, 1.5, 0.1, 4096);
    chain.scale(0.015);
    chain.translate(-812, 55, -256);
    chain.rotateZ(1.1);
    const auto inverse = chain.inverse();
    ASSERT_TRUE(inverse);
    const Matrix4 identity = *inverse * chain;
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column)
            EXPECT_NEAR(identity.at(row, column), row == column ? 1 : 0, 1e-6);
    Matrix4 flat;
    flat.scale(0);
    EXPECT_FALSE(flat.inverse());
}

}  // namespace
}  // namespace bc
