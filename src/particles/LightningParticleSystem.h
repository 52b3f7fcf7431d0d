// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "particles/VariantParticleSystem.h"

namespace bc {

/// "lightning": a bolt of short beams, one a particle, each with one of three images.
class LightningParticleSystem final : public VariantParticleSystem {
  public:
    /// World units from joint to joint of a bolt.
    static constexpr float segmentLength = 32;
    /// World units that a beam reaches to either side.
    static constexpr float beamWidth = 8;
    /// How much nearer than the particle it is drawn.
    static constexpr float raise = 0.2F;

    LightningParticleSystem();
    /// The images besides the definition's.
    [[nodiscard]] static std::span<const std::string> extraImages();

    /// The bolt: joints that wander off the straight line as they go, the last one at the end. As
    /// long as the pool allows.
    void emitBetween(const Vector& from, const Vector& to) override;

  protected:
    void addVariant(QuadBatch& batch, int variant) const override;
    [[nodiscard]] bool drawsBeams() const override { return true; }
};

}  // namespace bc
