// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "WorldScene.h"

#include "world/LevelLoader.h"
#include "world/World.h"

namespace bc::bench {

namespace {

class GameWorldContender final : public Contender {
  public:
    explicit GameWorldContender(const WorldScene& scene) : gravity_(scene.gravity) {
        LevelBodies bodies;
        for (const std::vector<Vector>& corners : scene.statics) {
            auto body = std::make_unique<Body>();
            body->mass = body->invMass = 0;
            for (const Vector& corner : corners)
                body->addWorldVertex(corner.x, corner.y);
            body->setPosition(body->centroid());
            body->makeLocalVertices();
            body->friction = scene.friction;
            body->bounce = scene.restitution;
            bodies.push_back(std::move(body));
        }
        for (const WorldScene::Box& box : scene.boxes) {
            auto body = std::make_unique<Body>();
            body->mass = body->invMass = 1;
            body->setPosition(box.centre);
            body->makeBox(box.width, box.height);
            body->vel = box.vel;
            body->friction = scene.friction;
            body->bounce = scene.restitution;
            bodies.push_back(std::move(body));
        }
        insertBodies(world_, std::move(bodies), false);
    }

    void step() override { world_.simulate(stepSeconds, gravity_); }

    int trace(const WorldScene::Segment& ray) override {
        hits_.clear();
        world_.quadtree().trace(Ray(ray.from, ray.to), hits_);
        return static_cast<int>(hits_.size());
    }

  private:
    World world_;
    TraceResults hits_;
    float gravity_;
};

}  // namespace

std::unique_ptr<Contender> makeGameWorld(const WorldScene& scene) {
    return std::make_unique<GameWorldContender>(scene);
}

}  // namespace bc::bench
