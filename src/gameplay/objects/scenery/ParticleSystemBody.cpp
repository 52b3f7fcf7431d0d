// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/scenery/ParticleSystemBody.h"

#include "core/Text.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "particles/ParticleManager.h"
#include "world/BodyFields.h"

namespace bc {

namespace {

/// Seconds within which a stopped effect is gone at the latest.
constexpr float fadeSeconds = 10;

}  // namespace

ParticleSystemBody::ParticleSystemBody() {
    thinks = true;
    thinkInterval = 0;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

void ParticleSystemBody::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level().box(16, 16).with("entity", "true").with("visible", "false");
    f.param("systemid", systemId, "Name of the particle system.")
        .kind(ParamKind::particle)
        .required();
    f.param("on", on, "On at first.").inLevels("true");
    f.param("reverttimer", revertTimer,
            "Seconds after being triggered until it turns back; 0 stays.");
    f.shown("on", on);
    f.saved("wastriggered", triggered);
    f.shown("triggered", triggered);
    f.kept("reverttime", revertAt);
    f.saved("on", on, on);
    f.shown("running", particleManager().find(runningSystem_) != nullptr);
}

ParticleSystemBody::~ParticleSystemBody() {
    stop(0);
}

void ParticleSystemBody::onLoaded() {
    GameBody::onLoaded();
    if (on)
        start();
}

void ParticleSystemBody::start() {
    const ParticleSystem* system = startParticles(systemId, pos);
    runningSystem_ = system != nullptr ? system->id() : none;
}

void ParticleSystemBody::stop(float seconds) {
    if (ParticleSystem* system = particleManager().find(runningSystem_))
        system->stop(seconds);
    runningSystem_ = none;
}

void ParticleSystemBody::flip() {
    on = !on;
    if (on)
        start();
    else
        stop(fadeSeconds);
}

void ParticleSystemBody::onTriggered(GameBody* /*activator*/) {
    // Without a revert time there is nothing to wait for: each trigger switches it over.
    if (triggered && revertTimer > 0)
        return;
    triggered = true;
    revertAt = levelTime() + revertTimer * 1000;
    flip();
}

void ParticleSystemBody::onThink(float /*dt*/) {
    if (!triggered || revertTimer <= 0 || revertAt >= levelTime())
        return;
    triggered = false;
    flip();
}

}  // namespace bc
