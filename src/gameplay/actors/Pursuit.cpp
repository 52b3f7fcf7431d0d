// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/Pursuit.h"

#include "gameplay/actors/GameBody.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/ScratchLists.h"
#include "world/World.h"

namespace bc {

namespace {

/// Pursuers close in mostly sideways.
constexpr float upwardsShare = 0.2F;
/// Squared distance; farther enemies are never chosen.
constexpr float farthestSquared = 100000;

}  // namespace

void approach(Body& body, const Body& target, float acceleration, float maxSpeed) {
    const Vector towards = normalised(target.pos - body.pos) * acceleration;
    body.vel += Vector(towards.x, towards.y * upwardsShare);
    const float speed = body.vel.length();
    if (speed > maxSpeed)
        body.vel *= maxSpeed / speed;
}

GameBody* nearestEnemy(const Body& body, float radius) {
    World* world = GameplaySingleton::instance().world();
    if (world == nullptr)
        return nullptr;
    static ScratchLists<Body*> lists;
    const ScratchLists<Body*>::Lease nearby(lists);
    world->quadtree().queryRadius(body.pos, radius, *nearby);
    GameBody* nearest = nullptr;
    float best = farthestSquared;
    for (Body* candidate : *nearby) {
        auto* enemy = dynamic_cast<GameBody*>(candidate);
        if (enemy == nullptr || enemy == &body || !enemy->team.test(team::enemy))
            continue;
        const Vector apart = enemy->pos - body.pos;
        const float squared =
            apart.x * apart.x + apart.y * apart.y + apart.z * apart.z + apart.w * apart.w;
        if (squared < best) {
            best = squared;
            nearest = enemy;
        }
    }
    return nearest;
}

}  // namespace bc
