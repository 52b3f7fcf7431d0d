// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace bc {

/// One square of the tree. The order of the bodies in its list is that of their sequence numbers;
/// their slots have none.
struct alignas(64) QuadTreeNode {
    float minX, maxX, minY, maxY;
    /// Grows in search order: the quarters on the way from the root, two bits each from the top,
    /// then the depth.
    std::uint64_t order;
    /// Four nodes, or null for a leaf.
    QuadTreeNode* quarters;
    /// Entries of its bodies.
    std::uint32_t* slots;
    std::uint32_t count;
    /// In groups of four.
    std::uint32_t groupCapacity;
    /// Bit q: quarter q or something below it holds bodies.
    std::uint8_t occupied;
    std::uint8_t index;
    std::uint8_t depth;
    /// The rest boxes do not match the bodies any more.
    mutable bool restStale;

    // The quarters' squares, tested four at a time.
    alignas(64) float quarterMinX[4];
    float quarterMaxX[4];
    float quarterMinY[4];
    float quarterMaxY[4];

    /// The boxes of the bodies' polygons for traces, in groups of four: 16 floats, four each of
    /// min x, max x, min y and max y. Brought up to date when a trace comes by.
    float* restBoxes;
    QuadTreeNode* parent;
    float centreX, centreY, size;

    [[nodiscard]] std::uint32_t groups() const { return (count + 3) / 4; }
};

}  // namespace bc
