// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/InstantShot.h"

#include "core/Random.h"
#include "gameplay/actors/GameBody.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/PlayLog.h"
#include "gameplay/actors/ScratchLists.h"
#include "gameplay/weapons/FireableWeapon.h"
#include "particles/ParticleManager.h"
#include "world/World.h"

#include <algorithm>
#include <cmath>

namespace bc {

namespace {

constexpr float fullTurn = 2 * 3.1415927F;

// Streaks are longer near the muzzle (units).
constexpr float nearShortest = 48;
constexpr float nearLongest = 108;
constexpr float farShortest = 32;
constexpr float farLongest = 96;

using Hits = ScratchLists<TraceResult>;

Hits& hitLists() {
    static Hits lists;
    return lists;
}

/// The hits along a ray, nearest first; equal ones stay in search order. Nothing is allocated,
/// and the lists are short.
void traceSorted(const Vector& start, const Vector& end, std::vector<TraceResult>& hits) {
    World* world = GameplaySingleton::instance().world();
    if (world == nullptr)
        return;
    world->quadtree().trace(Ray(start, end), hits);
    for (std::size_t i = 1; i < hits.size(); ++i) {
        const TraceResult hit = hits[i];
        std::size_t at = i;
        for (; at > 0 && hit.t < hits[at - 1].t; --at)
            hits[at] = hits[at - 1];
        hits[at] = hit;
    }
}

bool isPassedOver(const Body& body, const GameBody* shooter) {
    if (!body.solid || &body == shooter)
        return true;
    const auto* target = dynamic_cast<const GameBody*>(&body);
    return target != nullptr && target->isUntouchable();
}

/// False for a body that is not of play.
bool strike(Body& body, const Vector& from, int damage, int damageType, float knockback) {
    auto* target = dynamic_cast<GameBody*>(&body);
    if (target == nullptr)
        return false;
    target->addVelocity(normalised(target->pos - from) * knockback);
    if (target->takesDamage)
        target->takeDamage(damage, damageType);
    return true;
}

}  // namespace

Vector muzzleOf(const GameBody* shooter, const Vector& position, const Vector& aim, float inset) {
    const float reach = shooter != nullptr ? shooter->radius - inset : 0.0F;
    return position + aim * reach;
}

InstantShot::InstantShot(const FireableWeapon& weapon, const GameBody* shooter,
                         const Vector& position, const Vector& aim, bool scattered)
    : start(muzzleOf(shooter, position, aim, muzzleInset)), direction(aim) {
    end = start + aim * weapon.range;
    if (scattered) {
        const Vector sideways = normalised(Vector(-aim.y, aim.x));
        const float offset = randomRange(-weapon.spread, weapon.spread);
        end += sideways * (offset * std::sin(fullTurn * randomRange(0, 1)));
        direction = normalised(end - start);
    }
}

void InstantShot::traceFirst(std::string_view weaponName, GameBody* shooter, int damage,
                             int damageType, float knockback) {
    const Hits::Lease hits(hitLists());
    traceSorted(start, end, *hits);
    const auto hit = std::find_if(hits->begin(), hits->end(), [shooter](const TraceResult& h) {
        return !isPassedOver(*h.body, shooter);
    });
    if (hit == hits->end()) {
        playlog::shot(weaponName, shooter, start, end, nullptr);
        return;
    }
    end = hit->point;
    playlog::shot(weaponName, shooter, start, end, hit->body);
    strike(*hit->body, start, damage, damageType, knockback);
}

void InstantShot::traceThrough(std::string_view weaponName, GameBody* shooter, int damage,
                               int damageType, float knockback) {
    const Hits::Lease hits(hitLists());
    traceSorted(start, end, *hits);
    const Body* first = nullptr;
    const Vector tracedEnd = end;
    for (const TraceResult& hit : *hits) {
        if (isPassedOver(*hit.body, shooter))
            continue;
        if (first == nullptr)
            first = hit.body;
        if (!strike(*hit.body, start, damage, damageType, knockback)) {
            end = hit.point;
            break;
        }
    }
    playlog::shot(weaponName, shooter, start, first != nullptr ? end : tracedEnd, first);
}

void InstantShot::bulletEffects() const {
    startParticles("bullethit", end);
    startParticles("spark", end);
    const float length = planarDistance(start, end);
    const float from = randomRange(0, length / 2);
    const float streak = from < length / 4 ? randomRange(nearShortest, nearLongest)
                                           : randomRange(farShortest, farLongest);
    const float to = std::min(from + streak, length);
    startBeam("tracer", start + direction * from, start + direction * to);
}

}  // namespace bc
