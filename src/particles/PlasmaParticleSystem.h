// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "particles/VariantParticleSystem.h"

namespace bc {

/// "plasma": a stream of glowing particles along a shot and a burst at its end. The particles drift
/// on curved paths; each has one of four images.
class PlasmaParticleSystem final : public VariantParticleSystem {
  public:
    /// World units between two particles of the stream.
    static constexpr float spacing = 9;
    /// Radians a second by which the velocity of a particle turns; particles with the second and
    /// fourth image turn the other way.
    static constexpr float curl = 9;

    PlasmaParticleSystem();
    /// The names of the images besides the one of the definition.
    [[nodiscard]] static std::span<const std::string> extraImages();

    /// Emits the definition's initialParticles at the second place and a stream that begins at the
    /// first one. The stream ends early when the pool is full.
    void emitBetween(const Vector& from, const Vector& to) override;

  protected:
    void addVariant(QuadBatch& batch, int variant) const override;
    void updateParticle(float dt, Particle& particle) override;
    [[nodiscard]] bool usesParticleHook() const override { return true; }
};

}  // namespace bc
