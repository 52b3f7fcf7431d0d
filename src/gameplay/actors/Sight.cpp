// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/Sight.h"

#include "gameplay/actors/GameBody.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "world/World.h"

namespace bc {

namespace {

bool letsSightPass(const Body& looker, const Body& hit, bool ignoreAllies) {
    const auto* body = dynamic_cast<const GameBody*>(&hit);
    if (body == nullptr || body->blocksSight())
        return false;
    if (body == &looker || body->category == category::water || body->category == category::lava)
        return true;
    if (!body->team.test(team::enemy | team::player))
        return true;
    if (ignoreAllies && body->team.test(team::enemy))
        return true;
    const auto* seer = dynamic_cast<const GameBody*>(&looker);
    return seer != nullptr && seer->seesPastPlayer() && body->category == category::player;
}

bool isInside(const Body& body, const Vector& point) {
    const std::vector<Vector>& corners = body.worldVertices();
    bool inside = false;
    for (std::size_t i = 0, j = corners.size() - 1; i < corners.size(); j = i++) {
        const Vector& a = corners[i];
        const Vector& b = corners[j];
        if ((a.y > point.y) != (b.y > point.y) &&
            point.x < (b.x - a.x) * (point.y - a.y) / (b.y - a.y) + a.x)
            inside = !inside;
    }
    return inside;
}

}  // namespace

bool canSee(const Body& looker, const Body& target, bool ignoreAllies, const Body** blocker) {
    if (blocker != nullptr)
        *blocker = nullptr;
    World* world = GameplaySingleton::instance().world();
    if (world == nullptr)
        return false;
    // Kept between calls: many enemies look every step.
    static TraceResults hits;
    hits.clear();
    world->quadtree().trace(Ray(looker.pos, target.pos), hits, true);
    sortByDistance(hits);
    for (const TraceResult& hit : hits) {
        if (letsSightPass(looker, *hit.body, ignoreAllies))
            continue;
        if (hit.body == &target)
            return true;
        if (blocker != nullptr)
            *blocker = hit.body;
        return false;
    }
    // From inside the target's outline the line crosses none of its edges.
    return isInside(target, looker.pos);
}

}  // namespace bc
