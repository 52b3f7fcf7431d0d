// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "world/CandidateGrid.h"

#include "world/Body.h"
#include "world/QuadTreeNode.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <utility>

namespace bc {

namespace {

/// A condition to be reckoned with instead of branched on.
unsigned bit(bool condition) {
    return condition ? 1 : 0;
}

/// A box made ready to be compared with others by one instruction: min x, -max x, min y, -max y.
class OverlapTest {
  public:
    explicit OverlapTest(const float* box)
        : signs_(_mm_castsi128_ps(_mm_set_epi32(INT32_MIN, 0, INT32_MIN, 0))),
          box_(_mm_xor_ps(_mm_loadu_ps(box), signs_)) {}
    /// Whether it truly overlaps another box (min x, max x, min y, max y).
    [[nodiscard]] bool overlaps(const float* other) const {
        const __m128 o = _mm_loadu_ps(other);
        const __m128 limits = _mm_xor_ps(_mm_shuffle_ps(o, o, _MM_SHUFFLE(2, 3, 0, 1)), signs_);
        return _mm_movemask_ps(_mm_cmplt_ps(box_, limits)) == 15;
    }

  private:
    __m128 signs_;
    __m128 box_;
};

}  // namespace

void CandidateGrid::init(float minX, float minY, float size) {
    const float wanted = std::ceil(size / smallestCell);
    auto side = static_cast<std::uint32_t>(std::clamp(wanted, 1.0F, float{maxSide}));
    float cell = std::max(size / static_cast<float>(side), 1.0F);
    std::size_t total = 0;
    levelCount_ = 0;
    while (levelCount_ < maxLevels) {
        Level& level = levels_[levelCount_++];
        level.origin = _mm_set_ps(minY, minY, minX, minX);
        level.perUnit = 1 / cell;
        level.last = static_cast<float>(side - 1);
        level.side = side;
        level.population = 0;
        total += std::size_t{side} * side;
        if (side == 1)
            break;
        side = (side + coarser - 1) / coarser;
        cell *= coarser;
    }
    cells_.assign(total, Cell{});
    Cell* next = cells_.data();
    for (std::uint32_t l = 0; l < levelCount_; ++l) {
        levels_[l].cells = next;
        next += std::size_t{levels_[l].side} * levels_[l].side;
    }
    usedLevels_ = 0;
    chunksUsed_ = 1;
    freeChunk_ = 0;
}

std::uint32_t CandidateGrid::takeChunk() {
    if (freeChunk_ != 0) {
        const std::uint32_t number = freeChunk_;
        freeChunk_ = chunk(number).next;
        return number;
    }
    if (chunksUsed_ >= blocks_.size() * chunksPerBlock)
        blocks_.push_back(std::make_unique<Chunk[]>(chunksPerBlock));
    return chunksUsed_++;
}

void CandidateGrid::addToCell(Cell& cell, std::uint32_t entry) {
    const std::uint32_t at = cell.count++;
    if (at < inlineEntries) {
        cell.first[at] = entry;
        return;
    }
    const std::uint32_t inChunk = (at - inlineEntries) % chunkEntries;
    if (inChunk == 0) {
        const std::uint32_t number = takeChunk();
        chunk(number).next = cell.more;
        cell.more = number;
    }
    chunk(cell.more).entries[inChunk] = entry;
}

void CandidateGrid::removeFromCell(Cell& cell, std::uint32_t entry) {
    const std::uint32_t at = --cell.count;
    const std::uint32_t inChunk = at < inlineEntries ? 0 : (at - inlineEntries) % chunkEntries;
    const std::uint32_t last =
        at < inlineEntries ? cell.first[at] : chunk(cell.more).entries[inChunk];
    std::uint32_t* const inlineEnd = cell.first + std::min(at + 1, inlineEntries);
    std::uint32_t* found = std::find(cell.first, inlineEnd, entry);
    if (found == inlineEnd) {
        std::uint32_t filled = inChunk + 1;
        for (std::uint32_t number = cell.more; number != 0; number = chunk(number).next) {
            Chunk& c = chunk(number);
            found = std::find(c.entries, c.entries + filled, entry);
            if (found != c.entries + filled)
                break;
            filled = chunkEntries;
        }
    }
    *found = last;
    if (at >= inlineEntries && inChunk == 0) {
        const std::uint32_t number = cell.more;
        cell.more = chunk(number).next;
        chunk(number).next = freeChunk_;
        freeChunk_ = number;
    }
}

void CandidateGrid::choosePlace(std::uint32_t entry) {
    const Box& box = entries_.boxes[entry];
    std::uint32_t level = 0;
    std::uint32_t cells = levels_[0].cellsOf(box);
    while (level + 1 < levelCount_ && CellRange(cells).count() > maxCellsCovered)
        cells = levels_[++level].cellsOf(box);
    entries_[entry].level = level;
    entries_[entry].cells = cells;
}

void CandidateGrid::enter(std::uint32_t entry) {
    choosePlace(entry);
    Level& level = levels_[entries_[entry].level];
    ++level.population;
    usedLevels_ |= 1U << entries_[entry].level;
    const CellRange range(entries_[entry].cells);
    for (std::uint32_t y = range.y0; y <= range.y1; ++y)
        for (std::uint32_t x = range.x0; x <= range.x1; ++x)
            addToCell(level.cell(x, y), entry);
}

void CandidateGrid::remove(std::uint32_t entry) {
    Level& level = levels_[entries_[entry].level];
    if (--level.population == 0)
        usedLevels_ &= ~(1U << entries_[entry].level);
    const CellRange range(entries_[entry].cells);
    for (std::uint32_t y = range.y0; y <= range.y1; ++y)
        for (std::uint32_t x = range.x0; x <= range.x1; ++x)
            removeFromCell(level.cell(x, y), entry);
}

void CandidateGrid::move(std::uint32_t entry) {
    const IndexEntry before = entries_[entry];
    choosePlace(entry);
    if (entries_[entry].level != before.level) {
        entries_[entry] = before;
        remove(entry);
        enter(entry);
        return;
    }
    // Most bodies only leave or enter a row or a column.
    const Level& level = levels_[before.level];
    const CellRange left(before.cells);
    const CellRange entered(entries_[entry].cells);
    for (std::uint32_t y = left.y0; y <= left.y1; ++y)
        for (std::uint32_t x = left.x0; x <= left.x1; ++x)
            if (!entered.has(x, y))
                removeFromCell(level.cell(x, y), entry);
    for (std::uint32_t y = entered.y0; y <= entered.y1; ++y)
        for (std::uint32_t x = entered.x0; x <= entered.x1; ++x)
            if (!left.has(x, y))
                addToCell(level.cell(x, y), entry);
}

/// One query. What it meets is as good as random, so that the processor guesses most branches
/// wrong: the usual case, up to four cells without a crowd, is written to have hardly any.
class CandidateGrid::Query {
  public:
    Query(const CandidateGrid& grid, const Body& body, std::uint32_t leftOut, const Box& box,
          IndexHits& hits)
        : grid_(grid),
          test_(&box.minX),
          leftOut_(leftOut),
          massive_(body.isMassive()),
          hits_(hits) {}

    void search(const Level& level, const CellRange& range) {
        if (range.x1 - range.x0 <= 1 && range.y1 - range.y0 <= 1 && searchFew(level, range))
            return;
        for (std::uint32_t y = range.y0; y <= range.y1; ++y)
            for (std::uint32_t x = range.x0; x <= range.x1; ++x)
                searchCell(level.cell(x, y), range, x, y);
    }

  private:
    // Above the number of an entry: which of the four cells it was found in.
    static constexpr int cellShift = 30;
    static constexpr std::uint32_t entryMask = (1U << cellShift) - 1;
    static constexpr std::uint32_t few = 120;

    /// False when the cells have too many entries for it.
    bool searchFew(const Level& level, const CellRange& range) {
        // Where there is only one column or row, the second one is the first again, left out.
        const Cell* cells[4] = {&level.cell(range.x0, range.y0), &level.cell(range.x1, range.y0),
                                &level.cell(range.x0, range.y1), &level.cell(range.x1, range.y1)};
        const std::uint32_t columns = 0U - (range.x1 - range.x0);
        const std::uint32_t rows = 0U - (range.y1 - range.y0);
        const std::uint32_t in[4] = {~0U, columns, rows, columns & rows};
        const std::uint32_t counts[4] = {cells[0]->count, cells[1]->count & in[1],
                                         cells[2]->count & in[2], cells[3]->count & in[3]};
        std::uint32_t count = counts[0] + counts[1] + counts[2] + counts[3];
        if (count > few)
            return false;
        std::uint32_t met[few + 8];
        std::uint32_t* to = met;
        const bool crowded =
            (cells[0]->more | cells[1]->more | cells[2]->more | cells[3]->more) != 0;
        for (std::uint32_t c = 0; c < 4; ++c) {
            const __m128i tag = _mm_set1_epi32(static_cast<int>(c << cellShift));
            copyTagged(cells[c]->first, tag, to);
            if (!crowded) {
                to += counts[c];
                continue;
            }
            to += std::min(counts[c], inlineEntries);
            std::uint32_t filled = (counts[c] - inlineEntries - 1) % chunkEntries + 1;
            for (std::uint32_t number = cells[c]->more & in[c]; number != 0;) {
                const Chunk& chunk = grid_.chunk(number);
                copyTagged(chunk.entries, tag, to);
                to += std::exchange(filled, chunkEntries);
                number = chunk.next;
            }
        }
        const Box* boxes = grid_.entries_.boxes.data();
        std::uint32_t overlapping = 0;
        for (std::uint32_t i = 0; i < count; ++i) {
            const std::uint32_t entry = met[i] & entryMask;
            met[overlapping] = met[i];
            overlapping += bit(test_.overlaps(&boxes[entry].minX)) & bit(entry != leftOut_);
        }
        hits_.makeRoom(overlapping + 1);
        for (std::uint32_t i = 0; i < overlapping; ++i) {
            const std::uint32_t cell = met[i] >> cellShift;
            consider(met[i] & entryMask, range, range.x0 + (cell & 1U), range.y0 + (cell >> 1));
        }
        return true;
    }

    /// Eight numbers, of which some may be more than there are.
    static void copyTagged(const std::uint32_t* from, __m128i tag, std::uint32_t* to) {
        static_assert(sizeof(Cell) == 32 && sizeof(Chunk) == 32);
        const auto* in = reinterpret_cast<const __m128i*>(from);
        auto* out = reinterpret_cast<__m128i*>(to);
        _mm_storeu_si128(out, _mm_or_si128(_mm_loadu_si128(in), tag));
        _mm_storeu_si128(out + 1, _mm_or_si128(_mm_loadu_si128(in + 1), tag));
    }

    void searchCell(const Cell& cell, const CellRange& range, std::uint32_t x, std::uint32_t y) {
        const std::uint32_t* met = cell.first;
        std::uint32_t count = std::min(cell.count, inlineEntries);
        std::uint32_t filled = (cell.count - inlineEntries - 1) % chunkEntries + 1;
        for (std::uint32_t more = cell.more;;) {
            hits_.makeRoom(count + 1);
            for (std::uint32_t i = 0; i < count; ++i)
                if (test_.overlaps(&grid_.entries_.boxes[met[i]].minX) && met[i] != leftOut_)
                    consider(met[i], range, x, y);
            if (more == 0)
                return;
            met = grid_.chunk(more).entries;
            more = grid_.chunk(more).next;
            count = std::exchange(filled, chunkEntries);
        }
    }

    /// An entry whose box overlaps, met in the cell at x, y.
    void consider(std::uint32_t met, const CellRange& range, std::uint32_t x, std::uint32_t y) {
        const IndexEntry& entry = grid_.entries_[met];
        // Of the cells that both reach into, the first reports it.
        const CellRange its(entry.cells);
        const unsigned wanted =
            bit(x == std::max(range.x0, its.x0)) & bit(y == std::max(range.y0, its.y0)) &
            bit(test_.overlaps(&entry.node->minX)) & bit(massive_ || entry.body->isMassive());
        hits_.addIf(wanted != 0, {entry.node->order, entry.sequence, entry.body});
    }

    const CandidateGrid& grid_;
    const OverlapTest test_;
    const std::uint32_t leftOut_;
    const bool massive_;
    IndexHits& hits_;
};

void CandidateGrid::query(const Body& body, bool inIndex, bool withSelf, IndexHits& hits) const {
    hits.clear();
    constexpr std::uint32_t nobody = 0xFFFFFFFF;
    const std::uint32_t own = inIndex ? body.indexEntry() : nobody;
    const Box box =
        inIndex ? entries_.boxes[own]
                : Box{body.bounds.minX, body.bounds.maxX, body.bounds.minY, body.bounds.maxY};
    Query query(*this, body, withSelf ? nobody : own, box, hits);
    for (std::uint32_t used = usedLevels_; used != 0; used &= used - 1) {
        const auto l = static_cast<std::uint32_t>(std::countr_zero(used));
        const Level& level = levels_[l];
        query.search(level, CellRange(inIndex && entries_[own].level == l ? entries_[own].cells
                                                                          : level.cellsOf(box)));
    }
    if (hits.size() > 1)
        hits.sort();
}

void CandidateGrid::prefetch(std::uint32_t entry) const {
    const Level& level = levels_[entries_[entry].level];
    const CellRange range(entries_[entry].cells);
    _mm_prefetch(reinterpret_cast<const char*>(&level.cell(range.x0, range.y0)), _MM_HINT_T0);
    _mm_prefetch(reinterpret_cast<const char*>(&level.cell(range.x1, range.y1)), _MM_HINT_T0);
}

}  // namespace bc
