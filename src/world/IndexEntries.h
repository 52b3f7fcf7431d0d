// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "world/BRect.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace bc {

class Body;
struct QuadTreeNode;

/// What the spatial index knows of a body.
struct IndexEntry {
    Body* body;
    QuadTreeNode* node;
    /// Its place in the order of its node's list.
    std::uint32_t sequence;
    std::uint32_t slot;
    /// The cells of the candidate grid that its bounds reach into.
    std::uint32_t cells;
    std::uint32_t level;
};

/// The entries of one spatial index. The bodies' swept bounds stand here as well, side by side,
/// since they are what is asked for most.
struct IndexEntries {
    std::uint32_t add(Body& body) {
        if (free.empty()) {
            entries.push_back({});
            boxes.push_back({});
            free.reserve(entries.capacity());
            free.push_back(static_cast<std::uint32_t>(entries.size() - 1));
        }
        const std::uint32_t at = free.back();
        free.pop_back();
        entries[at] = {&body, nullptr, 0, 0, 0, 0};
        return at;
    }
    void remove(std::uint32_t at) {
        entries[at].body = nullptr;
        free.push_back(at);
    }
    /// Whether the number is that of the body's entry here.
    [[nodiscard]] bool isOf(std::uint32_t at, const Body& body) const {
        return at < entries.size() && entries[at].body == &body;
    }
    void clear() {
        entries.clear();
        boxes.clear();
        free.clear();
    }
    IndexEntry& operator[](std::uint32_t at) { return entries[at]; }
    const IndexEntry& operator[](std::uint32_t at) const { return entries[at]; }

    std::vector<IndexEntry> entries;
    std::vector<Box> boxes;
    std::vector<std::uint32_t> free;
};

/// A body found by a query, with what puts it into its place in the results.
struct IndexHit {
    /// The node's place in search order.
    std::uint64_t node;
    /// The body's place in the node's list.
    std::uint32_t sequence;
    Body* body;

    friend bool operator<(const IndexHit& a, const IndexHit& b) {
        return a.node != b.node ? a.node < b.node : a.sequence < b.sequence;
    }
};

/// Hits of a query; its memory is kept for the next one.
class IndexHits {
  public:
    void clear() { count_ = 0; }
    void add(const IndexHit& hit) {
        makeRoom(1);
        hits_[count_++] = hit;
    }
    void makeRoom(std::size_t more) {
        if (count_ + more > hits_.size())
            hits_.resize(2 * (count_ + more) + 64);
    }
    /// add without a branch, where makeRoom has been called.
    void addIf(bool wanted, const IndexHit& hit) {
        hits_[count_] = hit;
        count_ += static_cast<std::size_t>(wanted);
    }
    /// There are seldom more than a few.
    void sort();
    [[nodiscard]] std::size_t size() const { return count_; }
    [[nodiscard]] const IndexHit* begin() const { return hits_.data(); }
    [[nodiscard]] const IndexHit* end() const { return hits_.data() + count_; }

  private:
    std::vector<IndexHit> hits_;
    std::size_t count_ = 0;
};

}  // namespace bc
