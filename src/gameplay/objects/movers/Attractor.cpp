// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/movers/Attractor.h"

#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/ScratchLists.h"
#include "particles/ParticleManager.h"
#include "world/BodyFields.h"
#include "world/World.h"

namespace bc {

Attractor::Attractor() {
    thinks = true;
    thinkInterval = 100;
    solid = false;
    showDamage = false;
    usesDefaultShape = true;
    flags.set(bodyflag::untouchable);
}

void Attractor::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level()
        .with("entity", "true")
        .with("texture", "data/images/attractor.png")
        .with("texmap", "fit");
    f.param("force", force, "Velocity that it adds each 100 ms; negative pushes.").inLevels("20");
    f.param("radius", reach, "How far it reaches.").inLevels("160");
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
