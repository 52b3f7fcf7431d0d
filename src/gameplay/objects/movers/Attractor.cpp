// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/movers/Attractor.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/ScratchLists.h"
#include "particles/ParticleManager.h"
#include "world/World.h"

namespace bc {

Attractor::Attractor() {
    type = "attractor";
    thinks = true;
    thinkInterval = 100;
    solid = false;
    showDamage = false;
    usesDefaultShape = true;
    flags.set(bodyflag::untouchable);
}

std::unique_ptr<Body> Attractor::create() const {
    return std::make_unique<Attractor>();
}

void Attractor::applyAttributes(const std::map<std::string, std::string>& attributes) {
    GameBody::applyAttributes(attributes);
    const Attributes given(attributes);
    given.read("force", force);
    given.read("radius", reach);
}

void Attractor::onLoaded() {
    GameBody::onLoaded();
    startParticles("attractor", pos);
}

void Attractor::onThink(float /*dt*/) {
    World* world = GameplaySingleton::instance().world();
    if (world == nullptr)
        return;
    static ScratchLists<Body*> lists;
    const ScratchLists<Body*>::Lease near(lists);
    world->quadtree().queryRadius(pos, reach, *near);
    for (Body* body : *near) {
        if (!body->isMassive())
            continue;
        const Vector pull = normalised(pos - body->pos) * force;
        body->addVelocity(pull);
        if (!body->constantvelocity.isZero())
            body->constantvelocity += pull;
    }
}

}  // namespace bc
