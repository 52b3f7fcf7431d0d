// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RGBAColour.h"
#include "core/Vector.h"
#include "ports/IRenderer.h"

#include <cstddef>
#include <vector>

namespace bc {

/// Collects quads and hands them to the renderer in one call. Its memory is kept from batch to
/// batch, so that drawing allocates nothing once the largest one has been seen.
class QuadBatch {
  public:
    /// No beam is cut into more pieces than this; longer ones get longer pieces.
    static constexpr int pieceLimit = 512;

    struct Bytes {
        std::uint8_t r, g, b, a;
    };

    void clear() { used_ = 0; }
    [[nodiscard]] std::size_t quads() const { return used_ / 4; }

    /// The whole image, centred on (x, y), upright.
    void addCentred(float x, float y, float z, float halfWidth, float halfHeight, Bytes colour);
    /// A band from a to b that reaches halfWidth to either side, the image once along it (its lower
    /// edge at a). flip mirrors it sideways. Nothing when a and b are one place.
    void addBeam(const Vector& a, const Vector& b, float z, float halfWidth, Bytes colour,
                 bool flip);
    /// The same as a chain of pieces pieceLength long, the last one cut at b.
    void addSegmentedBeam(const Vector& a, const Vector& b, float z, float halfWidth,
                          float pieceLength, Bytes colour);

    /// One drawQuads call with everything collected, none when that is nothing; empty afterwards.
    void flush(IRenderer& renderer);

  private:
    QuadVertex* grow();

    /// Grown only; the first used_ corners are the batch.
    std::vector<QuadVertex> corners_;
    std::size_t used_ = 0;
};

}  // namespace bc
