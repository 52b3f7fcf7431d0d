// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "world/Body.h"

#include "particles/ParticleSystem.h"
#include "world/BodyParticleSystemObserver.h"
#include "world/CollisionShape.h"
#include "world/QuadTree.h"
#include "world/Simd.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace bc {

Body::Body() : shape_(CollisionShape::of({})) {
    turnBox();
}

Body::~Body() {
    detachAllParticleSystems();
    if (node_ != nullptr)
        QuadTree::removeFromItsTree(*this);
}

std::unique_ptr<Body> Body::create() const {
    return std::make_unique<Body>();
}

void Body::setPosition(const Vector& v) {
    if (!simd::within(simd::load(v), maxCoordinate))
        return;
    pos = renderpos = oldpos = projectedpos = v;
}

void Body::limitSpeed() {
    const float squared = vel.x * vel.x + vel.y * vel.y + vel.z * vel.z + vel.w * vel.w;
    if (squared <= maxSpeed * maxSpeed)
        return;
    if (!(squared <= std::numeric_limits<float>::max())) {
        // The square overflows: bring it into range first; what is no number at all is dropped.
        if (!simd::within(simd::load(vel), std::numeric_limits<float>::max())) {
            vel = Vector();
            return;
        }
        vel *= 1e-30F;
    } else if (!(std::sqrt(squared) > maxSpeed)) {
        return;
    }
    vel.normalise();
    vel *= maxSpeed;
}

void Body::gainVelocity(const Vector& v) {
    vel += v;
    limitSpeed();
}

void Body::applyForce(const Vector& force, float scale) {
    if (isMassive())
        gainVelocity(force * (invMass * scale));
}

void Body::addVelocity(const Vector& v) {
    if (isMassive())
        gainVelocity(v);
}

bool Body::advance(float dt) {
    if (!isMassive() && !nonmassmover) {
        vel = Vector();
        return false;
    }
    oldpos = pos;
    const __m128 step = _mm_set1_ps(dt);
    const __m128 drag = _mm_set1_ps(inliquid ? liquidfriction : 1.0F);
    __m128 place = simd::load(pos);
    place = _mm_add_ps(place, _mm_mul_ps(_mm_mul_ps(simd::load(frozenvel), step), drag));
    place = _mm_add_ps(place, _mm_mul_ps(_mm_mul_ps(simd::load(constantvelocity), step), drag));
    if (simd::within(place, maxCoordinate)) {
        simd::store(pos, place);
    } else {
        // It has left every level there could be: it stays where it is.
        vel = frozenvel = constantvelocity = Vector();
        if (!simd::within(simd::load(pos), maxCoordinate))
            pos = oldpos = Vector();
    }
    inliquidlastframe = inliquid;
    inliquid = false;
    sweepBounds(dt);
    if (!particleSystems_.empty())
        updateParticleSystems();
    return true;
}

void Body::move(float dt) {
    if (advance(dt) && node_ != nullptr)
        QuadTree::boundsChanged(*this);
}

void Body::touch(Body& other, Body& self, const Vector& normal, float t, const Vector& point) {
    onTouch({&other, &self, &normal, &point, t});
}

void Body::addTarget(Body* body) {
    targetBodies.push_back(body);
}

void Body::removeTarget(Body* body) {
    const auto it = std::find(targetBodies.begin(), targetBodies.end(), body);
    if (it != targetBodies.end())
        targetBodies.erase(it);
}

void Body::onBodyRemoved(const Body& gone) {
    std::erase(targetBodies, &gone);
}

void BodyParticleSystemObserver::onParticleSystemEnded(ParticleSystem& system) {
    body_.forgetParticleSystem(system);
}

void Body::attachParticleSystem(ParticleSystem& system) {
    if (!observer_)
        observer_ = std::make_unique<BodyParticleSystemObserver>(*this);
    particleSystems_.push_back(&system);
    system.addObserver(observer_.get());
}

void Body::forgetParticleSystem(ParticleSystem& system) {
    const auto it = std::find(particleSystems_.begin(), particleSystems_.end(), &system);
    if (it != particleSystems_.end())
        particleSystems_.erase(it);
}

void Body::detachParticleSystem(ParticleSystem& system) {
    if (std::find(particleSystems_.begin(), particleSystems_.end(), &system) ==
        particleSystems_.end())
        return;
    forgetParticleSystem(system);
    system.removeObserver(observer_.get());
}

void Body::detachAllParticleSystems() {
    for (ParticleSystem* system : particleSystems_) {
        system->stop(system->remainingLife());
        system->removeObserver(observer_.get());
    }
    particleSystems_.clear();
}

void Body::updateParticleSystems() {
    for (ParticleSystem* system : particleSystems_)
        system->setPosition(renderpos, renderpos);
}

}  // namespace bc
