// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "particles/ParticleSystem.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

namespace bc {

/// Base of systems with several images: each particle is drawn with one of them, chosen at its
/// birth with equal chances. The first image is the definition's. One drawing call an image.
class VariantParticleSystem : public ParticleSystem {
  public:
    static constexpr std::size_t extraImageLimit = 3;

    void init(std::shared_ptr<const ParticleSystemParams> definition, int id) final;
    void draw(IRenderer& renderer, QuadBatch& batch) final;
    void forgetTextures() final;

  protected:
    /// extraImages: the names of the second image and those after it; they outlive the system.
    VariantParticleSystem(ParticleKind kind, std::span<const std::string> extraImages)
        : ParticleSystem(kind),
          extraImages_(extraImages.first(std::min(extraImages.size(), extraImageLimit))) {}

    void addParticle(Particle& particle) final;
    /// Adds the particles with that image to the batch.
    virtual void addVariant(QuadBatch& batch, int variant) const = 0;

  private:
    std::span<const std::string> extraImages_;
    std::array<TextureHandle, extraImageLimit> extraTextures_;
};

}  // namespace bc
