// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "world/CandidateGrid.h"
#include "world/QuadTreeNode.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace bc {

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
