// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "particles/ParticleSystem.h"

namespace bc {

/// Base of the systems whose particles are drawn as bands from the place where they were born to
/// their second place.
class BeamParticleSystem : public ParticleSystem {
  public:
    /// World units by which a band is drawn nearer to the viewer than its particle.
    static constexpr float raise = 0.2F;

    using ParticleSystem::ParticleSystem;
    void draw(IRenderer& renderer, QuadBatch& batch) override;

  protected:
    [[nodiscard]] bool drawsBeams() const final { return true; }
    /// Adds the band of one particle, which has this width, to the batch.
    virtual void addBand(QuadBatch& batch, const Vector& from, const Vector& to, float z,
                         float width, QuadBatch::Bytes colour) const = 0;
};

/// "rail": a beam that reaches the width of the particle to either side of the line. The image is
/// repeated along it.
class RailParticleSystem final : public BeamParticleSystem {
  public:
    /// World units of the beam that the image covers once.
    static constexpr float pieceLength = 64;

    RailParticleSystem() : BeamParticleSystem(ParticleKind::rail) {}

  protected:
    void addBand(QuadBatch& batch, const Vector& from, const Vector& to, float z, float width,
                 QuadBatch::Bytes colour) const override;
};

/// "tracer": a band as wide as the particle. The image covers it once.
class TracerParticleSystem final : public BeamParticleSystem {
  public:
    TracerParticleSystem() : BeamParticleSystem(ParticleKind::tracer) {}

  protected:
    void addBand(QuadBatch& batch, const Vector& from, const Vector& to, float z, float width,
                 QuadBatch::Bytes colour) const override;
};

}  // namespace bc
