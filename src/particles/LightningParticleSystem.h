// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "particles/VariantParticleSystem.h"

namespace bc {

/// "lightning": a bolt of short beams. Each particle is one beam, with one of three images.
class LightningParticleSystem final : public VariantParticleSystem {
  public:
    /// The length of a beam in world units, measured along the straight line of the bolt.
    static constexpr float segmentLength = 32;
    /// World units that a beam reaches to either side.
    static constexpr float beamWidth = 8;
    /// World units by which a beam is drawn nearer to the viewer than its particle.
    static constexpr float raise = 0.2F;

    LightningParticleSystem();
    /// The names of the images besides the one of the definition.
    [[nodiscard]] static std::span<const std::string> extraImages();

    /// Emits a bolt. Each joint is up to one unit farther off the straight line than the one before
    /// it. The bolt ends early when the pool is full.
    void emitBetween(const Vector& from, const Vector& to) override;

  protected:
    void addVariant(QuadBatch& batch, int variant) const override;
    [[nodiscard]] bool drawsBeams() const override { return true; }
};

}  // namespace bc
