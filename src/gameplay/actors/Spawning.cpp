// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/Spawning.h"

#include "gameplay/actors/GameplaySingleton.h"
#include "world/World.h"

namespace bc {

void placeAt(Body& body, const Vector& position) {
    body.setPosition(position);
    body.updateGeometry();
    body.computeBounds();
}

Body* addToWorld(std::unique_ptr<Body> body) {
    World* world = GameplaySingleton::instance().world();
    return world != nullptr ? world->spawnBody(std::move(body)) : nullptr;
}

Body* spawnInWorld(std::unique_ptr<Body> body, const Vector& position) {
    placeAt(*body, position);
    return addToWorld(std::move(body));
}

void removeFromWorld(Body& body) {
    // A body in no world yet goes as soon as it is in one.
    if (World* world = GameplaySingleton::instance().world())
        world->markForRemoval(&body);
    else
        body.cancleanup = true;
}

}  // namespace bc
