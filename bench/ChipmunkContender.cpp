// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "WorldScene.h"

#include <chipmunk/chipmunk.h>

#include <cmath>

namespace bc::bench {

namespace {

cpVect at(const Vector& v) {
    return cpv(v.x, v.y);
}

class ChipmunkContender final : public Contender {
  public:
    explicit ChipmunkContender(const WorldScene& scene) : space_(cpSpaceNew()) {
        cpSpaceSetIterations(space_, 1);
        cpSpaceSetGravity(space_, cpv(0, scene.gravity));
        for (const std::vector<Vector>& corners : scene.statics) {
            std::vector<cpVect> points;
            for (const Vector& corner : corners)
                points.push_back(at(corner));
            addShape(cpPolyShapeNew(cpSpaceGetStaticBody(space_), static_cast<int>(points.size()),
                                    points.data(), cpTransformIdentity, 0),
                     scene);
        }
        for (const WorldScene::Box& box : scene.boxes) {
            cpBody* body = cpSpaceAddBody(space_, cpBodyNew(1, INFINITY));
            cpBodySetPosition(body, at(box.centre));
            cpBodySetVelocity(body, at(box.vel));
            bodies_.push_back(body);
            addShape(cpBoxShapeNew(body, box.width, box.height, 0), scene);
        }
    }
    ~ChipmunkContender() override {
        for (cpShape* shape : shapes_) {
            cpSpaceRemoveShape(space_, shape);
            cpShapeFree(shape);
        }
        for (cpBody* body : bodies_) {
            cpSpaceRemoveBody(space_, body);
            cpBodyFree(body);
        }
        cpSpaceFree(space_);
    }
    ChipmunkContender(const ChipmunkContender&) = delete;
    ChipmunkContender& operator=(const ChipmunkContender&) = delete;

    void step() override { cpSpaceStep(space_, stepSeconds); }

    int trace(const WorldScene::Segment& ray) override {
        int hits = 0;
        cpSpaceSegmentQuery(
            space_, at(ray.from), at(ray.to), 0, CP_SHAPE_FILTER_ALL,
            [](cpShape*, cpVect, cpVect, cpFloat, void* count) { ++*static_cast<int*>(count); },
            &hits);
        return hits;
    }

  private:
    void addShape(cpShape* shape, const WorldScene& scene) {
        cpShapeSetFriction(shape, scene.friction);
        cpShapeSetElasticity(shape, scene.restitution);
        shapes_.push_back(cpSpaceAddShape(space_, shape));
    }

    cpSpace* space_;
    std::vector<cpShape*> shapes_;
    std::vector<cpBody*> bodies_;
};

}  // namespace

std::unique_ptr<Contender> makeChipmunk(const WorldScene& scene) {
    return std::make_unique<ChipmunkContender>(scene);
}

}  // namespace bc::bench
