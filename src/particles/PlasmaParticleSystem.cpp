// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "particles/PlasmaParticleSystem.h"

#include <cmath>

namespace bc {

namespace {

const std::array<std::string, 3> images = {
    "data/particles/plasma2.png", "data/particles/plasma3.png", "data/particles/plasma4.png"};

}  // namespace

std::span<const std::string> PlasmaParticleSystem::extraImages() {
    return images;
}

PlasmaParticleSystem::PlasmaParticleSystem()
    : VariantParticleSystem(ParticleKind::plasma, images) {}

void PlasmaParticleSystem::emitBetween(const Vector& from, const Vector& to) {
    emit(to, to, definition().initialParticles);
    const float length = planarDistance(from, to);
    if (!(length > 0))
        return;
    const Vector along = (to - from) * (1 / length);
    for (float done = 0; done < length && room() > 0; done += spacing)
        emit(from + along * done, to, 1);
}

void PlasmaParticleSystem::updateParticle(float dt, Particle& particle) {
    const float turn = (particle.variant % 2 == 0 ? curl : -curl) * dt;
    const float c = std::cos(turn);
    const float s = std::sin(turn);
    const float x = particle.vel.x;
    particle.vel.x = x * c - particle.vel.y * s;
    particle.vel.y = x * s + particle.vel.y * c;
}

void PlasmaParticleSystem::addVariant(QuadBatch& batch, int variant) const {
    addQuads(batch, variant);
}

}  // namespace bc
