// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "particles/VariantParticleSystem.h"

#include "core/Random.h"

namespace bc {

void VariantParticleSystem::init(std::shared_ptr<const ParticleSystemParams> definition, int id) {
    ParticleSystem::init(std::move(definition), id);
    extraTextures_ = {};
}

void VariantParticleSystem::forgetTextures() {
    ParticleSystem::forgetTextures();
    extraTextures_ = {};
}

void VariantParticleSystem::addParticle(Particle& particle) {
    particle.variant = randomInt() % (static_cast<int>(extraImages_.size()) + 1);
    ParticleSystem::addParticle(particle);
}

void VariantParticleSystem::draw(IRenderer& renderer, QuadBatch& batch) {
    if (liveCount() == 0)
        return;
    setBlendMode(renderer);
    for (std::size_t image = 0; image <= extraImages_.size(); ++image) {
        batch.clear();
        addVariant(batch, static_cast<int>(image));
        if (batch.quads() == 0)
            continue;
        if (image == 0)
            bind(renderer, definition().texturePath(), texture_);
        else
            bind(renderer, extraImages_[image - 1], extraTextures_[image - 1]);
        batch.flush(renderer);
    }
}

}  // namespace bc
