// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "particles/LightningParticleSystem.h"

#include "core/Random.h"

#include <algorithm>

namespace bc {

namespace {

const std::array<std::string, 2> images = {"data/particles/lightning2.png",
                                           "data/particles/lightning3.png"};

/// -1, 0 or 1 world units with equal chances.
float jitter() {
    return static_cast<float>(looksRandom().integer() % 3 - 1);
}

}  // namespace

std::span<const std::string> LightningParticleSystem::extraImages() {
    return images;
}

LightningParticleSystem::LightningParticleSystem()
    : VariantParticleSystem(ParticleKind::lightning, images) {}

void LightningParticleSystem::emitBetween(const Vector& from, const Vector& to) {
    const float length = planarDistance(from, to);
    if (!(length > 0))
        return;
    const Vector along = (to - from) * (1 / length);
    Vector joint = from;
    Vector offset;
    for (float done = 0; done < length && room() > 0;) {
        done = std::min(done + segmentLength, length);
        offset.x += jitter();
        offset.y += jitter();
        const Vector next = from + along * done + offset;
        emit(joint, next, 1);
        joint = next;
    }
}

void LightningParticleSystem::addVariant(QuadBatch& batch, int variant) const {
    const int steps = definition().glowSteps;
    pool().forEach([&](const ParticlePool::Block& p, int i) {
        QuadBatch::Bytes colour = bytes(p, i);
        if (p.variant[i] != variant || colour.a < 1)
            return;
        const Vector from{p.x[i], p.y[i]};
        const Vector to{p.secondX[i], p.secondY[i]};
        const float z = p.z[i] + raise;
        const int fainter = steps > 0 ? colour.a / steps : 0;
        for (int pass = 0; pass < steps; ++pass) {
            // The image and its mirror image together look like two arcs wound round each other.
            batch.addBeam(from, to, z, beamWidth, colour, false);
            batch.addBeam(from, to, z, beamWidth, colour, true);
            colour.a = static_cast<std::uint8_t>(colour.a - fainter);
        }
    });
}

}  // namespace bc
