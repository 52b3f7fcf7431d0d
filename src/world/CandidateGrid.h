// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "world/IndexEntries.h"
#include "world/Simd.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace bc {

/// Finds the bodies of a quadtree whose swept bounds overlap those of a body: square cells over the
/// tree's square, each with the entries whose boxes reach into it. A body that would cover many
/// small cells is kept among larger ones. What lies outside the square counts to the outer cells.
/// Which bodies a query yields and in what order is the tree's matter; this only finds them.
class CandidateGrid {
  public:
    explicit CandidateGrid(IndexEntries& entries) : entries_(entries) {}
    CandidateGrid(const CandidateGrid&) = delete;
    CandidateGrid& operator=(const CandidateGrid&) = delete;

    /// Empty cells over a square.
    void init(float minX, float minY, float size);

    void add(std::uint32_t entry, const BRect& bounds) {
        setBox(entry, bounds);
        enter(entry);
    }
    void remove(std::uint32_t entry);
    void update(std::uint32_t entry, const BRect& bounds) {
        setBox(entry, bounds);
        if (levels_[entries_[entry].level].cellsOf(entries_.boxes[entry]) != entries_[entry].cells)
            move(entry);
    }
    /// Replaces hits by the bodies whose boxes overlap that of the body and whose nodes' squares do
    /// so too; for a static body only massive ones. In order. inIndex: the body has an entry here.
    void query(const Body& body, bool inIndex, bool withSelf, IndexHits& hits) const;
    /// Brings what a query for the entry will read nearer to the processor.
    void prefetch(std::uint32_t entry) const;

  private:
    /// World units; about four times the size of the bodies there are most of.
    static constexpr float smallestCell = 64;
    static constexpr int maxSide = 256;
    static constexpr std::uint32_t maxLevels = 5;
    static constexpr int coarser = 4;
    /// A body that covers more cells goes a level up.
    static constexpr int maxCellsCovered = 36;
    static constexpr std::uint32_t inlineEntries = 6;
    static constexpr std::uint32_t chunkEntries = 7;
    static constexpr std::uint32_t chunksPerBlock = 256;

    /// Entries of a cell beyond the first ones. All chunks of a cell but the first are full.
    struct Chunk {
        std::uint32_t entries[chunkEntries];
        std::uint32_t next;
    };
    struct alignas(32) Cell {
        std::uint32_t first[inlineEntries];
        std::uint32_t count;
        /// Number of its first chunk; 0 is none.
        std::uint32_t more;
    };

    /// Columns and rows of cells, from and to inclusive.
    struct CellRange {
        explicit CellRange(std::uint32_t packed)
            : x0(packed & 255U),
              x1(packed >> 8 & 255U),
              y0(packed >> 16 & 255U),
              y1(packed >> 24) {}
        [[nodiscard]] std::uint32_t count() const { return (x1 - x0 + 1) * (y1 - y0 + 1); }
        [[nodiscard]] bool has(std::uint32_t x, std::uint32_t y) const {
            return x >= x0 && x <= x1 && y >= y0 && y <= y1;
        }
        std::uint32_t x0, x1, y0, y1;
    };

    struct Level {
        /// A CellRange, a byte each.
        [[nodiscard]] std::uint32_t cellsOf(const Box& box) const {
            __m128 v = _mm_sub_ps(_mm_loadu_ps(&box.minX), origin);
            v = _mm_max_ps(_mm_mul_ps(v, _mm_set1_ps(perUnit)), _mm_setzero_ps());
            v = _mm_min_ps(v, _mm_set1_ps(last));
            __m128i i = _mm_cvttps_epi32(v);
            i = _mm_packs_epi32(i, i);
            return static_cast<std::uint32_t>(_mm_cvtsi128_si32(_mm_packus_epi16(i, i)));
        }
        [[nodiscard]] Cell& cell(std::uint32_t x, std::uint32_t y) const {
            return cells[y * side + x];
        }

        __m128 origin;
        float perUnit;
        float last;
        std::uint32_t side;
        /// Bodies on this level.
        std::uint32_t population;
        Cell* cells;
    };

    class Query;

    void setBox(std::uint32_t entry, const BRect& bounds) {
        _mm_storeu_ps(&entries_.boxes[entry].minX, _mm_loadu_ps(&bounds.minX));
    }
    void enter(std::uint32_t entry);
    void move(std::uint32_t entry);
    void choosePlace(std::uint32_t entry);
    void addToCell(Cell& cell, std::uint32_t entry);
    void removeFromCell(Cell& cell, std::uint32_t entry);
    [[nodiscard]] Chunk& chunk(std::uint32_t number) const {
        return blocks_[number / chunksPerBlock][number % chunksPerBlock];
    }
    std::uint32_t takeChunk();

    IndexEntries& entries_;
    Level levels_[maxLevels] = {};
    std::uint32_t levelCount_ = 0;
    /// Bit l: level l holds bodies.
    std::uint32_t usedLevels_ = 0;
    std::vector<Cell> cells_;
    std::vector<std::unique_ptr<Chunk[]>> blocks_;
    std::uint32_t chunksUsed_ = 1;
    std::uint32_t freeChunk_ = 0;
};

}  // namespace bc
