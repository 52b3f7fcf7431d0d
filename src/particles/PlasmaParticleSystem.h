// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "particles/VariantParticleSystem.h"

namespace bc {

/// "plasma": a stream of glowing blobs along the shot that curl as they drift apart, each with one
/// of four images, and a burst where it ends.
class PlasmaParticleSystem final : public VariantParticleSystem {
  public:
    /// World units between two blobs of the stream.
    static constexpr float spacing = 9;
    /// Radians a second by which the drift of a blob turns; the other way round for every second
    /// image.
    static constexpr float curl = 9;

    PlasmaParticleSystem();
    /// The images besides the definition's.
    [[nodiscard]] static std::span<const std::string> extraImages();

    /// The definition's initial particles at the second place, and the stream from the first place
    /// on as far as the rest of the pool reaches.
    void emitBetween(const Vector& from, const Vector& to) override;

  protected:
    void addVariant(QuadBatch& batch, int variant) const override;
    void updateParticle(float dt, Particle& particle) override;
    [[nodiscard]] bool usesParticleHook() const override { return true; }
};

}  // namespace bc
