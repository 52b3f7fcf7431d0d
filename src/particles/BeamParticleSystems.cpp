// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "particles/BeamParticleSystems.h"

namespace bc {

void BeamParticleSystem::draw(IRenderer& renderer, QuadBatch& batch) {
    batch.clear();
    pool().forEach([&](const ParticlePool::Block& p, int i) {
        const QuadBatch::Bytes colour = bytes(p, i);
        if (colour.a < 1 || p.width[i] <= 0)
            return;
        addBand(batch, {p.x[i], p.y[i]}, {p.secondX[i], p.secondY[i]}, p.z[i] + raise, p.width[i],
                colour);
    });
    if (batch.quads() == 0)
        return;
    setBlendMode(renderer);
    bind(renderer, definition().texturePath(), texture_);
    batch.flush(renderer);
}

void RailParticleSystem::addBand(QuadBatch& batch, const Vector& from, const Vector& to, float z,
                                 float width, QuadBatch::Bytes colour) const {
    batch.addSegmentedBeam(from, to, z, width, pieceLength, colour);
}

void TracerParticleSystem::addBand(QuadBatch& batch, const Vector& from, const Vector& to, float z,
                                   float width, QuadBatch::Bytes colour) const {
    batch.addBeam(from, to, z, width * 0.5F, colour, false);
}

}  // namespace bc
