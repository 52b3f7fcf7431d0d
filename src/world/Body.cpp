// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "world/Body.h"

#include "particles/ParticleSystem.h"
#include "world/BodyIndex.h"
#include "world/BodyParticleSystemObserver.h"
#include "world/CollisionShape.h"
#include "world/Simd.h"

#include <algorithm>

namespace bc {

Body::Body() : shape_(CollisionShape::of({})) {
    turnBox();
}

Body::~Body() {
    detachAllParticleSystems();
    if (index_ != nullptr)
        index_->remove(*this);
}

std::unique_ptr<Body> Body::create() const {
    return std::make_unique<Body>();
}

void Body::setPosition(const Vector& v) {
    if (!simd::within(simd::load(v), maxCoordinate))
        return;
    pos = renderpos = oldpos = v;
    projectedpos = v;
}

int Body::indexDepth() const {
    return index_ != nullptr ? index_->depthOf(*this) : -1;
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
    noteParticles();
    system.addObserver(observer_.get());
}

void Body::forgetParticleSystem(ParticleSystem& system) {
    const auto it = std::find(particleSystems_.begin(), particleSystems_.end(), &system);
    if (it != particleSystems_.end())
        particleSystems_.erase(it);
    noteParticles();
}

void Body::noteParticles() {
    stepFlags_ = static_cast<std::uint8_t>(
        particleSystems_.empty() ? stepFlags_ & ~carriesParticles : stepFlags_ | carriesParticles);
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
    noteParticles();
}

void Body::updateParticleSystems() {
    for (ParticleSystem* system : particleSystems_)
        system->setPosition(renderpos, renderpos);
}

}  // namespace bc
