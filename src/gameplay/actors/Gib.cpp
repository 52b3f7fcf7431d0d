// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/Gib.h"

#include "core/Random.h"
#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Rules.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/actors/Spawning.h"
#include "particles/ParticleManager.h"
#include "world/BodyFields.h"

#include <cmath>

namespace bc {

namespace {

constexpr float smallest = 8;
constexpr float largest = 10;
constexpr float slowest = 100;
constexpr float fastest = 200;

// A softer hit makes no sound (units a second).
constexpr float minBounceSpeed = 8;
constexpr float bounceSoundPause = 250;

}  // namespace

Gib::Gib() {
    type = "gib";
    setTexture("data/images/gib.png");
    makeBox(smallest, smallest);
    Gib::renew();
}

void Gib::fields(BodyFields& f) {
    PooledBody::fields(f);
    f.shown("deathtime", deathTime);
    f.kept("nextbouncesound", nextBounceSound);
}

Gib::~Gib() {
    returnToBudget();
}

void Gib::renew() {
    PooledBody::renew();
    mass = 1;
    invMass = 1;
    bounce = 0.3F;
    textured = true;
    outlined = false;
    clampTexture = true;
    thinks = true;
    flags.set(bodyflag::untouchable);
    nextBounceSound = 0;
    counted_ = false;
}

void Gib::retire(std::unique_ptr<Body> self) {
    returnToBudget();
    PooledBody::retire(std::move(self));
}

void Gib::returnToBudget() {
    if (!counted_)
        return;
    counted_ = false;
    if (!GameplaySingleton::exists())
        return;
    if (Rules* rules = GameplaySingleton::instance().rules)
        rules->returnGib();
}

void Gib::launchFrom(const Vector& position) {
    auto gib = bodyPool().take<Gib>();
    const float size = randomRange(smallest, largest);
    gib->makeBox(size, size);
    gib->vel = randomDirection() * randomRange(slowest, fastest);
    gib->deathTime = levelTime() + lifetime;
    gib->counted_ = true;
    // In the world before the trail starts, so that a full world costs no effect.
    if (Gib* placed = spawnAt(std::move(gib), position))
        if (ParticleSystem* trail = startParticles("bloodtrail", position))
            placed->attachParticleSystem(*trail);
}

void Gib::onThink(float /*dt*/) {
    if (deathTime >= levelTime())
        return;
    returnToBudget();
    removeFromWorld(*this);
}

bool Gib::acceptsCollision(const Body& other) const {
    if (other.category == category::player || other.category == category::rocket ||
        other.category == category::grenade || other.category == category::grapple)
        return false;
    const auto* body = dynamic_cast<const GameBody*>(&other);
    return body == nullptr || !body->team.test(team::enemy | team::player);
}

void Gib::onTouch(const TouchInfo& touch) {
    if (isStaticGeometry(*touch.other))
        playBounceSound(*this, nextBounceSound);
}

bool isStaticGeometry(const Body& body) {
    return body.solid && body.visible && !body.isMassive();
}

void playBounceSound(const Body& body, float& nextSound) {
    const float now = levelTime();
    if (now <= nextSound || std::fabs(body.vel.y) <= minBounceSpeed)
        return;
    const bool odd = randomInt() % 2 == 1;
    playSoundAt(odd ? sound::bounceHigh : sound::bounceLow, body.pos);
    nextSound = now + bounceSoundPause;
}

}  // namespace bc
