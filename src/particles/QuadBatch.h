// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RGBAColour.h"
#include "core/Vector.h"
#include "ports/IRenderer.h"

#include <cstddef>
#include <vector>

namespace bc {

/// Collects quads and passes them to the renderer in one call. It keeps its memory, so that only a
/// batch larger than all before it allocates. Places and sizes are world units.
class QuadBatch {
  public:
    /// The limit for the pieces of a segmented beam. The pieces of a longer beam are longer.
    static constexpr int pieceLimit = 512;

    struct Bytes {
        std::uint8_t r, g, b, a;
    };

    void clear() { used_ = 0; }
    [[nodiscard]] std::size_t quads() const { return used_ / 4; }

    /// Adds an upright quad with the centre x, y.
    void addCentred(float x, float y, float z, float halfWidth, float halfHeight, Bytes colour);
    /// Adds a band from a to b that reaches halfWidth to either side. The image covers it once, its
    /// lower edge at a; flip mirrors the image sideways. Adds nothing when a equals b.
    void addBeam(const Vector& a, const Vector& b, float z, float halfWidth, Bytes colour,
                 bool flip);
    /// Adds the same band as a chain of pieces with pieceLength each; the last one may be shorter.
    void addSegmentedBeam(const Vector& a, const Vector& b, float z, float halfWidth,
                          float pieceLength, Bytes colour);

    /// Draws and removes all quads; without quads it does not call the renderer.
    void flush(IRenderer& renderer);

  private:
    /// Memory for the four corners of one more quad.
    QuadVertex* grow();

    /// Never shrinks; the first used_ corners belong to the batch.
    std::vector<QuadVertex> corners_;
    std::size_t used_ = 0;
};

}  // namespace bc
