// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The swept test against one written down plainly, and the responses against sums done by hand.
#include "core/Random.h"
#include "world/Body.h"
#include "world/Collision.h"
#include "world/CollisionShape.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace bc {
namespace {

using Polygon = std::vector<Vector>;

/// All axes in their order, nothing left out.
std::optional<SweptHit> plainTest(const Polygon& a, const Polygon& b, const Vector& o,
                                  const Vector& v) {
    std::vector<Vector> axes;
    if (v.x * v.x + v.y * v.y > 1e-6F)
        axes.emplace_back(-v.y, v.x);
    for (const Polygon* polygon : {&a, &b})
        for (std::size_t i = 0; i < polygon->size(); ++i) {
            const Vector edge = (*polygon)[(i + 1) % polygon->size()] - (*polygon)[i];
            axes.emplace_back(-edge.y, edge.x);
        }
    std::optional<float> best;
    Vector normal;
    for (const Vector& axis : axes) {
        const auto along = [&](const Vector& p) { return p.x * axis.x + p.y * axis.y; };
        const auto less = [&](const Vector& p, const Vector& q) { return along(p) < along(q); };
        const auto [minA, maxA] = std::minmax_element(a.begin(), a.end(), less);
        const auto [minB, maxB] = std::minmax_element(b.begin(), b.end(), less);
        const float h = along(o);
        const float d0 = along(*minA) + h - along(*maxB);
        const float d1 = along(*minB) - (along(*maxA) + h);
        const float length = axis.length();
        float value = std::max(d0, d1) / length;
        if (d0 > 0 || d1 > 0) {
            const float w = along(v);
            if (std::fabs(w) < 1e-6F)
                return std::nullopt;
            const float t0 = std::min(-d0 / w, d1 / w);
            const float t1 = std::max(-d0 / w, d1 / w);
            value = t0 > 0 ? t0 : t1;
            if (value < 0 || value > 1)
                return std::nullopt;
        }
        if (!best || value > *best) {
            best = value;
            normal = Vector(axis.x / length, axis.y / length);
        }
    }
    const float t = std::trunc(8 * *best) / 8;
    if (t > -0.1F && t < 1e-6F)
        return std::nullopt;
    if (normal.x * o.x + normal.y * o.y < 0)
        normal = Vector(-normal.x, -normal.y);
    return SweptHit{normal, t};
}

Polygon box(float w, float h) {
    return {Vector(-w / 2, -h / 2), Vector(w / 2, -h / 2), Vector(w / 2, h / 2),
            Vector(-w / 2, h / 2)};
}

Polygon randomPolygon() {
    if (randomInt() % 2 == 0)
        return box(randomInt() % 2 == 0 ? 16 : 24, 16);
    Polygon corners;
    const int count = 3 + randomInt() % 6;
    for (int i = 0; i < count; ++i) {
        const float angle =
            6.2831853F * (static_cast<float>(i) + randomRange(0, 0.9F)) / static_cast<float>(count);
        corners.emplace_back(std::cos(angle) * 14, std::sin(angle) * 14);
    }
    return corners;
}

TEST(SweptTest, AgreesWithThePlainOne) {
    seedRandom(11);
    int impacts = 0;
    int overlaps = 0;
    for (int i = 0; i < 60000; ++i) {
        const Polygon a = randomPolygon();
        const Polygon b = randomPolygon();
        Vector offset(randomRange(-40, 40), randomRange(-40, 40));
        Vector motion(randomRange(-25, 25), randomRange(-25, 25));
        // Rounded numbers bring the cases in which axes are equally good.
        if (i % 3 == 0) {
            offset = Vector(std::round(offset.x / 4) * 4, std::round(offset.y / 4) * 4);
            motion = Vector(std::round(motion.x / 8) * 8, i % 2 == 0 ? 0 : motion.y);
        }
        SweptHit hit;
        const bool found =
            sweptTest(*CollisionShape::of(a), *CollisionShape::of(b), offset, motion, hit);
        const std::optional<SweptHit> expected = plainTest(a, b, offset, motion);
        ASSERT_EQ(found, expected.has_value()) << i;
        if (!expected)
            continue;
        ASSERT_EQ(hit.t, expected->t) << i;
        ASSERT_EQ(hit.normal.x, expected->normal.x) << i;
        ASSERT_EQ(hit.normal.y, expected->normal.y) << i;
        ++(hit.t > 0 ? impacts : overlaps);
    }
    EXPECT_GT(impacts, 5000);
    EXPECT_GT(overlaps, 5000);
}

TEST(SweptTest, ShapesWithoutAreaDoNoHarm) {
    const auto wide = CollisionShape::of(box(40, 40));
    SweptHit hit;
    for (const Polygon& odd : {Polygon{}, Polygon{Vector(1, 1)}, Polygon{Vector(), Vector()},
                               Polygon{Vector(-5, 0), Vector(5, 0)}}) {
        const auto shape = CollisionShape::of(odd);
        const bool found = sweptTest(*shape, *wide, Vector(1, 2), Vector(3, 0), hit);
        EXPECT_EQ(found, !odd.empty()) << odd.size();
        EXPECT_TRUE(!found || std::isfinite(hit.t + hit.normal.x + hit.normal.y));
        EXPECT_FALSE(sweptTest(*shape, *shape, Vector(100, 100), Vector(), hit));
    }
}

TEST(SweptTest, EqualPolygonsShareOneShape) {
    EXPECT_EQ(CollisionShape::of(box(7, 9)), CollisionShape::of(box(7, 9)));
    EXPECT_NE(CollisionShape::of(box(7, 9)), CollisionShape::of(box(9, 7)));
    // A box has two directions, a triangle three.
    EXPECT_EQ(CollisionShape::of(box(7, 9))->axes().size(), 2U);
    EXPECT_EQ(CollisionShape::of(Polygon{Vector(), Vector(3, 0), Vector(0, 4)})->axes().size(), 3U);
}

TEST(VelocityResponse, ByHand) {
    struct Case {
        const char* what;
        Vector va, vb;
        float massA, massB;
        float bounce, friction;
        Vector expectedA, expectedB;
    };
    const Vector up(0, 1);
    const Case cases[] = {
        {"falls on a floor", {0, -40}, {}, 2, 0, 0.25F, 0, {0, 10}, {}},
        {"a floor hit by a box", {}, {0, 40}, 0, 2, 0.25F, 0, {}, {0, -10}},
        {"slides along it", {50, -40}, {}, 2, 0, 0, 0.5F, {25, 0}, {}},
        {"too slow to slide", {0.05F, -40}, {}, 2, 0, 0, 0.5F, {0, 0}, {}},
        {"leaves it and is only braked", {50, 40}, {}, 2, 0, 0.25F, 0.5F, {25, 40}, {}},
        {"pushes a heavier one", {0, -40}, {}, 1, 3, 0, 0, {0, -10}, {0, -10}},
        {"swaps speeds", {0, -40}, {0, 20}, 1, 1, 1, 0, {0, 20}, {0, -40}},
    };
    for (const Case& c : cases) {
        Body a;
        Body b;
        a.vel = c.va;
        b.vel = c.vb;
        a.mass = c.massA;
        a.invMass = c.massA > 0 ? 1 / c.massA : 0;
        b.mass = c.massB;
        b.invMass = c.massB > 0 ? 1 / c.massB : 0;
        a.bounce = c.bounce;
        a.friction = c.friction;
        velocityResponse(a, b, up);
        EXPECT_NEAR(a.vel.x, c.expectedA.x, 1e-4) << c.what;
        EXPECT_NEAR(a.vel.y, c.expectedA.y, 1e-4) << c.what;
        EXPECT_NEAR(b.vel.x, c.expectedB.x, 1e-4) << c.what;
        EXPECT_NEAR(b.vel.y, c.expectedB.y, 1e-4) << c.what;
    }
}

TEST(Collide, SetsTheContactOfTheFirstBodyByTheNormal) {
    struct Case {
        Vector at;
        bool stands;
    };
    for (const Case& c : {Case{{0, 15}, true}, Case{{15, 0}, false}, Case{{0, -15}, false}}) {
        Body a;
        Body b;
        for (Body* body : {&a, &b}) {
            body->makeBox(16, 16);
            body->computeBounds();
        }
        a.setPosition(c.at);
        ASSERT_TRUE(collide(a, b, 0.025F));
        EXPECT_EQ(a.contact, c.stands);
        EXPECT_FALSE(b.contact);
    }
}

TEST(Collide, APairThatCannotMoveIsLeftAlone) {
    Body a;
    Body b;
    for (Body* body : {&a, &b}) {
        body->makeBox(16, 16);
        body->mass = 0;
    }
    EXPECT_FALSE(collide(a, b, 0.025F));
    a.mass = 1;
    EXPECT_FALSE(collide(a, a, 0.025F));
    EXPECT_TRUE(collide(a, b, 0.025F));
    b.clearGeometry();
    EXPECT_FALSE(collide(a, b, 0.025F)) << "there is nothing of it to touch";
}

TEST(Collide, ToldContactsAreLogged) {
    Body a;
    Body b;
    for (Body* body : {&a, &b})
        body->makeBox(16, 16);
    a.autoid = 7;
    b.autoid = 9;
    b.setPosition(Vector(0, -15));
    setTouchLogging(true);
    testing::internal::CaptureStdout();
    collide(a, b, 0.025F);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "touch 7 9 0,1 -1\n");
    setTouchLogging(false);
}

}  // namespace
}  // namespace bc
