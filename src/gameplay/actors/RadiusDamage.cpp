// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/RadiusDamage.h"

#include "gameplay/actors/GameBody.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/ScratchLists.h"
#include "world/World.h"

#include <cmath>

namespace bc {

namespace {

/// Push in the middle of a blast of knockback 1, units a second.
constexpr float centreKick = 120;
constexpr float sidewaysFactor = 1.5F;
/// A body in the very middle is not pushed anywhere: the centre lies this much behind it.
constexpr float centreDepth = 0.1F;

ScratchLists<Body*>& nearbyLists() {
    static ScratchLists<Body*> lists;
    return lists;
}

Vector kickFor(const Body& body, const Vector& centre, float radius, float knockback) {
    Vector towards = body.pos - centre;
    const float distance = towards.length();
    towards.normalise();
    const float strength = std::fabs(radius - distance) * (centreKick / radius) * knockback;
    // Nothing leaves the plane of play.
    return {towards.x * strength * sidewaysFactor, towards.y * strength};
}

}  // namespace

void radiusDamage(const Vector& centre, float radius, float knockback, int damage, int damageType,
                  GameBody* owner) {
    World* world = GameplaySingleton::instance().world();
    if (world == nullptr || !(radius > 0))
        return;
    // Whom the blast kills may explode in turn while this list is being walked.
    const ScratchLists<Body*>::Lease nearby(nearbyLists());
    world->quadtree().queryRadius(centre, radius, *nearby);
    const Vector lowered = centre - Vector(0, 0, centreDepth);
    for (Body* body : *nearby) {
        auto* target = dynamic_cast<GameBody*>(body);
        if (target != nullptr && target->isUntouchable())
            continue;
        body->addVelocity(kickFor(*body, lowered, radius, knockback));
        if (target == nullptr || target == owner)
            continue;
        if (owner == nullptr || !target->isAllyOf(*owner))
            target->takeDamage(damage, damageType);
    }
}

}  // namespace bc
