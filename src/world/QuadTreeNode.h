// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "world/CandidateGrid.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

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

/// What a tree works on: its nodes, their slots, the grid beside them. Memory grows as the tree
/// does and never shrinks, so that a world that has run for a while asks for nothing more; reset
/// makes all of it free again.
class QuadTreeStore {
  public:
    QuadTreeStore() = default;
    QuadTreeStore(const QuadTreeStore&) = delete;
    QuadTreeStore& operator=(const QuadTreeStore&) = delete;

    /// Four nodes without contents.
    [[nodiscard]] QuadTreeNode* takeNodes();
    /// Makes room in the node for at least one body more.
    void growSlots(QuadTreeNode& node);
    void reset();

    IndexEntries entries;
    CandidateGrid grid{entries};
    /// Scratch space of the queries.
    IndexHits hits;

  private:
    static constexpr std::size_t nodesPerBlock = 256;
    static constexpr std::size_t bytesPerSlab = std::size_t{1} << 18;
    static constexpr std::size_t alignment = 64;
    /// Group capacities are 2, 6 (a full leaf), 12, 24, 48 ...
    static constexpr std::size_t sizeClasses = 24;

    struct AlignedDelete {
        void operator()(std::byte* p) const;
    };
    struct Slab {
        std::unique_ptr<std::byte[], AlignedDelete> bytes;
        std::size_t size;
    };
    struct FreeSlots {
        FreeSlots* next;
    };

    static std::uint32_t groupsOf(std::size_t sizeClass);
    std::byte* takeBytes(std::size_t size);

    std::vector<std::unique_ptr<QuadTreeNode[]>> blocks_;
    std::size_t nodesUsed_ = 0;
    std::vector<Slab> slabs_;
    std::size_t slab_ = 0;
    std::size_t bytesUsed_ = 0;
    FreeSlots* free_[sizeClasses] = {};
};

}  // namespace bc
