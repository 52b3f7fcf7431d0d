// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/ScreenWiper.h"

#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/SoundIds.h"
#include "world/World.h"

namespace bc {

ScreenWiper::ScreenWiper() {
    texture = "data/images/screenwiper.png";
}

void ScreenWiper::give(Player&) {
    World* world = GameplaySingleton::instance().world();
    if (world == nullptr)
        return;
    // By index: what dies may throw off new bodies.
    for (std::size_t i = 0; i < world->allBodies().size(); ++i) {
        auto* body = dynamic_cast<GameBody*>(world->allBodies()[i]);
        if (body != nullptr && body->takesDamage && body->team.test(team::enemy) &&
            planarDistance(body->pos, pos) <= reach)
            body->takeDamage(strength, damage::environment);
    }
}

void ScreenWiper::pickupFeedback() {
    announce(sound::powerUp, "SCREENWIPE");
}

}  // namespace bc
