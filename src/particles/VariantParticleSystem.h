// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "particles/ParticleSystem.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

namespace bc {

/// Base of the systems with several images. Each particle gets one of them at its birth, all with
/// equal chances; the first one is the definition's. Each image takes one drawing call.
class VariantParticleSystem : public ParticleSystem {
  public:
    static constexpr std::size_t extraImageLimit = 3;

    void init(std::shared_ptr<const ParticleSystemParams> definition, int id) final;
    void draw(IRenderer& renderer, QuadBatch& batch) final;
    void forgetTextures() final;

  protected:
    /// extraImages are the names of the other images, at most extraImageLimit. They must outlive
    /// the system.
    VariantParticleSystem(ParticleKind kind, std::span<const std::string> extraImages)
        : ParticleSystem(kind),
          extraImages_(extraImages.first(std::min(extraImages.size(), extraImageLimit))) {}

    void addParticle(Particle& particle) final;
    /// Adds the particles with this index of an image to the batch.
    virtual void addVariant(QuadBatch& batch, int variant) const = 0;

  private:
    std::span<const std::string> extraImages_;
    std::array<TextureHandle, extraImageLimit> extraTextures_;
};

}  // namespace bc
