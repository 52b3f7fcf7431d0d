// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "world/BRect.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace bc {

class Body;
class QuadTree;

// How the tree lies in memory. Each node keeps its bodies' boxes in groups of four that are tested
// at once: 16 floats, four each of min x, max x, min y and max y. Unused lanes hold a box that
// overlaps nothing. The order of the bodies in the node's list is that of their sequence numbers;
// their slots have none.

struct QuadTreeSlot {
    Body* body;
    std::uint64_t sequence;
};

/// Into the order of the node's list.
void sortBySequence(std::vector<QuadTreeSlot>& slots);

struct alignas(64) QuadTreeNode {
    // The quarters' squares, tested four at a time.
    float quarterMinX[4];
    float quarterMaxX[4];
    float quarterMinY[4];
    float quarterMaxY[4];

    /// Four nodes, or null for a leaf.
    QuadTreeNode* quarters;
    /// Boxes of the motion of the step, then the slots, then the boxes of the resting polygons.
    float* boxes;
    QuadTreeSlot* slots;
    /// Filled when a trace first comes by after restStale was set.
    float* restBoxes;
    std::uint32_t count;
    /// In groups of four.
    std::uint32_t groupCapacity;
    /// Bit q: quarter q or something below it holds bodies.
    std::uint8_t occupied;
    std::uint8_t index;
    std::uint8_t depth;
    mutable bool restStale;
    QuadTreeNode* parent;
    QuadTree* tree;

    float minX, maxX, minY, maxY;
    float centreX, centreY, size;

    [[nodiscard]] std::uint32_t groups() const { return (count + 3) / 4; }
};

/// Memory of one tree's nodes and their slots. Grows as the tree does and never shrinks, so that a
/// world that has run for a while asks for nothing more; reset makes all of it free again.
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

    /// Scratch space of the queries.
    std::vector<QuadTreeSlot> hits;

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
