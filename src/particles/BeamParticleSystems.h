// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "particles/ParticleSystem.h"

namespace bc {

/// Systems whose particles are bands from the place where they were born to the second one; both
/// are drawn this much nearer than the particle.
class BeamParticleSystem : public ParticleSystem {
  public:
    static constexpr float raise = 0.2F;

    using ParticleSystem::ParticleSystem;
    void draw(IRenderer& renderer, QuadBatch& batch) override;

  protected:
    [[nodiscard]] bool drawsBeams() const final { return true; }
    /// One particle of the batch.
    virtual void addBand(QuadBatch& batch, const Vector& from, const Vector& to, float z,
                         float width, QuadBatch::Bytes colour) const = 0;
};

/// "rail": a textured beam as wide as the particle to either side, the image repeated along it.
class RailParticleSystem final : public BeamParticleSystem {
  public:
    /// World units of beam that one image covers.
    static constexpr float pieceLength = 64;

    RailParticleSystem() : BeamParticleSystem(ParticleKind::rail) {}

  protected:
    void addBand(QuadBatch& batch, const Vector& from, const Vector& to, float z, float width,
                 QuadBatch::Bytes colour) const override;
};

/// "tracer": a line of the particle's width, the image once along it.
class TracerParticleSystem final : public BeamParticleSystem {
  public:
    TracerParticleSystem() : BeamParticleSystem(ParticleKind::tracer) {}

  protected:
    void addBand(QuadBatch& batch, const Vector& from, const Vector& to, float z, float width,
                 QuadBatch::Bytes colour) const override;
};

}  // namespace bc
