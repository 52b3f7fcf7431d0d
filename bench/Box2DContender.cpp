// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "WorldScene.h"

#include <box2d/box2d.h>

namespace bc::bench {

namespace {

// Box2D is made for things of a metre and caps the way of a step at 2 of them: a box is 1 m wide.
constexpr float metresPerUnit = 1.0F / 16;

b2Vec2 metres(const Vector& v) {
    return {v.x * metresPerUnit, v.y * metresPerUnit};
}

struct AllHits final : b2RayCastCallback {
    float ReportFixture(b2Fixture* fixture, const b2Vec2& point, const b2Vec2&,
                        float fraction) override {
        hits.push_back({fixture, point, fraction});
        return 1;
    }
    struct Hit {
        b2Fixture* fixture;
        b2Vec2 point;
        float fraction;
    };
    std::vector<Hit> hits;
};

class Box2DContender final : public Contender {
  public:
    explicit Box2DContender(const WorldScene& scene)
        : world_(b2Vec2(0, scene.gravity * metresPerUnit)) {
        world_.SetAllowSleeping(false);
        b2BodyDef ground;
        b2Body* level = world_.CreateBody(&ground);
        for (const std::vector<Vector>& corners : scene.statics) {
            std::vector<b2Vec2> points;
            for (const Vector& corner : corners)
                points.push_back(metres(corner));
            b2PolygonShape shape;
            shape.Set(points.data(), static_cast<int32>(points.size()));
            addFixture(*level, shape, scene);
        }
        for (const WorldScene::Box& box : scene.boxes) {
            b2BodyDef definition;
            definition.type = b2_dynamicBody;
            definition.position = metres(box.centre);
            definition.linearVelocity = metres(box.vel);
            definition.fixedRotation = true;
            b2PolygonShape shape;
            shape.SetAsBox(box.width / 2 * metresPerUnit, box.height / 2 * metresPerUnit);
            addFixture(*world_.CreateBody(&definition), shape, scene);
        }
    }

    void step() override { world_.Step(stepSeconds, 1, 1); }

    int trace(const WorldScene::Segment& ray) override {
        all_.hits.clear();
        world_.RayCast(&all_, metres(ray.from), metres(ray.to));
        return static_cast<int>(all_.hits.size());
    }

  private:
    static void addFixture(b2Body& body, const b2Shape& shape, const WorldScene& scene) {
        b2FixtureDef definition;
        definition.shape = &shape;
        definition.density = 1;
        definition.friction = scene.friction;
        definition.restitution = scene.restitution;
        body.CreateFixture(&definition);
    }

    b2World world_;
    AllHits all_;
};

}  // namespace

std::unique_ptr<Contender> makeBox2D(const WorldScene& scene) {
    return std::make_unique<Box2DContender>(scene);
}

}  // namespace bc::bench
