// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "particles/QuadBatch.h"

#include <algorithm>
#include <cmath>

namespace bc {

QuadVertex* QuadBatch::grow() {
    if (used_ + 4 > corners_.size())
        corners_.resize(std::max<std::size_t>(256, corners_.size() * 2));
    QuadVertex* out = corners_.data() + used_;
    used_ += 4;
    return out;
}

void QuadBatch::addCentred(float x, float y, float z, float halfWidth, float halfHeight,
                           Bytes colour) {
    QuadVertex* out = grow();
    const auto [r, g, b, a] = colour;
    out[0] = {x - halfWidth, y + halfHeight, z, 0, 1, r, g, b, a};
    out[1] = {x + halfWidth, y + halfHeight, z, 1, 1, r, g, b, a};
    out[2] = {x + halfWidth, y - halfHeight, z, 1, 0, r, g, b, a};
    out[3] = {x - halfWidth, y - halfHeight, z, 0, 0, r, g, b, a};
}

void QuadBatch::addBeam(const Vector& a, const Vector& b, float z, float halfWidth, Bytes colour,
                        bool flip) {
    const float dx = b.x - a.x;
    const float dy = b.y - a.y;
    const float length = std::hypot(dx, dy);
    if (!(length > 0))
        return;
    // From the line to the left edge of the beam.
    const float px = -dy / length * halfWidth;
    const float py = dx / length * halfWidth;
    const float s = flip ? 1.0F : 0.0F;
    QuadVertex* out = grow();
    const auto [red, green, blue, alpha] = colour;
    out[0] = {a.x - px, a.y - py, z, s, 0, red, green, blue, alpha};
    out[1] = {a.x + px, a.y + py, z, 1 - s, 0, red, green, blue, alpha};
    out[2] = {b.x + px, b.y + py, z, 1 - s, 1, red, green, blue, alpha};
    out[3] = {b.x - px, b.y - py, z, s, 1, red, green, blue, alpha};
}

void QuadBatch::addSegmentedBeam(const Vector& a, const Vector& b, float z, float halfWidth,
                                 float pieceLength, Bytes colour) {
    const float length = planarDistance(a, b);
    if (!(length > 0) || !(pieceLength > 0))
        return;
    const float piece = std::max(pieceLength, length / pieceLimit);
    const Vector along = (b - a) * (piece / length);
    Vector from = a;
    for (float done = piece; done < length; done += piece) {
        const Vector to = from + along;
        addBeam(from, to, z, halfWidth, colour, false);
        from = to;
    }
    addBeam(from, b, z, halfWidth, colour, false);
}

void QuadBatch::flush(IRenderer& renderer) {
    if (used_ > 0)
        renderer.drawQuads({corners_.data(), used_});
    used_ = 0;
}

}  // namespace bc
