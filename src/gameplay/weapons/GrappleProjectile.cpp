// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/GrappleProjectile.h"

#include "core/Log.h"
#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/actors/Spawning.h"
#include "gameplay/weapons/GrappleHolder.h"
#include "world/BodyFields.h"
#include "world/World.h"

namespace bc {

namespace {

constexpr float hookSize = 8;
/// This near the hook the player is held rather than hauled in.
constexpr float nearDistance = 64;
constexpr float nearSpeed = 50;

}  // namespace

GrappleProjectile::GrappleProjectile() {
    type = "grappleprojectile";
    setTexture("data/images/grapplestar.png");
    makeBox(hookSize, hookSize);
    GrappleProjectile::renew();
}

void GrappleProjectile::fields(BodyFields& f) {
    Projectile::fields(f);
    f.shown("holding", holding);
    f.shown("pullspeed", pullSpeed);
}

void GrappleProjectile::renew() {
    Projectile::renew();
    category = category::grapple;
    mass = 5;
    invMass = 0.2F;
    bounce = 0.1F;
    speed = 1000;
    damage = 15;
    lifetime = 3000;
    entity = false;
    pullSpeed = 600;
    holding = false;
}

bool GrappleProjectile::acceptsCollision(const Body& other) const {
    if (other.category == category::player || other.category == category::rocket ||
        other.category == category::grenade)
        return false;
    const auto* body = dynamic_cast<const GameBody*>(&other);
    return body == nullptr || !body->team.test(team::enemy | team::player);
}

void GrappleProjectile::settleAt(float t) {
    // What it met at the very beginning of a step is noticed only once it is in it.
    placeAt(*this, t > 0 ? pos + vel * (step_ * t) : oldpos);
    // Once it holds, no step moves it any more.
    if (World* world = GameplaySingleton::instance().world())
        world->quadtree().reinsert(*this);
}

void GrappleProjectile::onTouch(const TouchInfo& touch) {
    const Body& other = *touch.other;
    if (exploded || &other == GameplaySingleton::instance().craft || !isStoppedBy(other))
        return;
    if (!holding) {
        settleAt(touch.t);
        playSoundAt(sound::grappleHold, pos);
    }
    mass = invMass = 0;
    vel = Vector();
    holding = true;
}

void GrappleProjectile::onThink(float dt) {
    step_ = dt;
    // Let go of, it pulls no more.
    if (cancleanup)
        return;
    GameBody* player = GameplaySingleton::instance().craft;
    GrappleHolder* holder = playersGrapple();
    if (player == nullptr || holder == nullptr) {
        logLine("NULL PLAYER for grappleprojectile think");
        return;
    }
    holder->grappleHook = this;
    if (!holding)
        return;
    const Vector towards(pos.x - player->pos.x, pos.y - player->pos.y);
    player->vel = normalised(towards) * (towards.length() > nearDistance ? pullSpeed : nearSpeed);
}

}  // namespace bc
