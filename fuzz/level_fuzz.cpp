// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Levels and saves: whatever is read is placed, simulated, traced and written again.
#include "FuzzXml.h"

#include "resources/XmlAttributes.h"
#include "world/BodyFactory.h"
#include "world/LevelLoader.h"
#include "world/World.h"
#include "world/WorldDump.h"
#include "world/WorldOrder.h"

#include <tinyxml.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

/// A body whose place the loader's texts decide in every way it knows.
class FussyBody final : public bc::Body {
  public:
    FussyBody() {
        type = "fussy";
        usesDefaultShape = true;
        normalisedTexCoords = true;
        nonmassmover = true;
    }
    [[nodiscard]] std::unique_ptr<Body> create() const override {
        return std::make_unique<FussyBody>();
    }
};

void expectSound(const bc::World& world) {
    for (const bc::Body* body : world.allBodies())
        for (const float n : {body->pos.x, body->pos.y, body->vel.x, body->vel.y, body->radius,
                              body->bounds.minX, body->bounds.maxY})
            if (!std::isfinite(n))
                std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool quiet = std::freopen("/dev/null", "w", stdout) != nullptr;
    TiXmlDocument document;
    const TiXmlElement* root = readFuzzed(data, size, document);
    if (!quiet || root == nullptr)
        return 0;

    bc::BodyFactory factory;
    factory.registerDefaults();
    factory.registerPrototype(std::make_unique<FussyBody>());
    for (const bool restoring : {false, true}) {
        bc::World world;
        bc::LevelBodies bodies;
        if (!bc::readSavedBodies(factory, *root, "save", bodies))
            return 0;
        if (restoring) {
            bc::LevelBodies level;
            bc::readSavedBodies(factory, *root, "save", level);
            bc::shapeIndex(world, level);
        }
        bc::insertBodies(world, std::move(bodies), restoring);
        if (restoring)
            bc::restoreOrder(world, *root, 0.025F);
        expectSound(world);
        for (int i = 0; i < 3; ++i)
            world.simulate(0.025F, -100);
        expectSound(world);
        world.interpolate(0.5F);
        bc::TraceResults hits;
        world.quadtree().trace(bc::Ray({-1e5F, 3}, {1e5F, 5}), hits, true);
        TiXmlElement written("save");
        bc::saveEntities(world, written);
        bc::saveOrder(world, written);
        bc::dumpBodies(world, written);
        bc::LevelBodies again;
        bc::readSavedBodies(factory, written, "save", again);
    }
    return 0;
}
