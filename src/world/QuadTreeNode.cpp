// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "world/QuadTreeNode.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

namespace bc {

namespace {

constexpr std::size_t bytesPerGroup = 2 * 16 * sizeof(float) + 4 * sizeof(QuadTreeSlot);

}  // namespace

void sortBySequence(std::vector<QuadTreeSlot>& slots) {
    const auto before = [](const QuadTreeSlot& a, const QuadTreeSlot& b) {
        return a.sequence < b.sequence;
    };
    constexpr std::size_t few = 24;
    if (slots.size() > few) {
        std::sort(slots.begin(), slots.end(), before);
        return;
    }
    for (std::size_t i = 1; i < slots.size(); ++i) {
        const QuadTreeSlot slot = slots[i];
        std::size_t to = i;
        for (; to > 0 && before(slot, slots[to - 1]); --to)
            slots[to] = slots[to - 1];
        slots[to] = slot;
    }
}

void QuadTreeStore::AlignedDelete::operator()(std::byte* p) const {
    ::operator delete[](p, std::align_val_t{alignment});
}

std::uint32_t QuadTreeStore::groupsOf(std::size_t sizeClass) {
    return sizeClass == 0 ? 2 : 6U << (sizeClass - 1);
}

QuadTreeNode* QuadTreeStore::takeNodes() {
    if (nodesUsed_ == blocks_.size() * nodesPerBlock)
        blocks_.push_back(std::make_unique<QuadTreeNode[]>(nodesPerBlock));
    QuadTreeNode* nodes = &blocks_[nodesUsed_ / nodesPerBlock][nodesUsed_ % nodesPerBlock];
    nodesUsed_ += 4;
    std::fill_n(nodes, 4, QuadTreeNode{});
    return nodes;
}

std::byte* QuadTreeStore::takeBytes(std::size_t size) {
    while (slab_ < slabs_.size() && bytesUsed_ + size > slabs_[slab_].size) {
        ++slab_;
        bytesUsed_ = 0;
    }
    if (slab_ == slabs_.size()) {
        const std::size_t slabSize = std::max(size, bytesPerSlab);
        void* bytes = ::operator new[](slabSize, std::align_val_t{alignment});
        slabs_.push_back(
            {std::unique_ptr<std::byte[], AlignedDelete>(static_cast<std::byte*>(bytes)),
             slabSize});
        bytesUsed_ = 0;
    }
    std::byte* taken = slabs_[slab_].bytes.get() + bytesUsed_;
    bytesUsed_ += size;
    return taken;
}

void QuadTreeStore::growSlots(QuadTreeNode& node) {
    std::size_t sizeClass = 0;
    while (groupsOf(sizeClass) <= node.groupCapacity)
        ++sizeClass;
    const std::uint32_t groups = groupsOf(sizeClass);
    std::byte* memory = nullptr;
    if (free_[sizeClass] != nullptr) {
        memory = reinterpret_cast<std::byte*>(free_[sizeClass]);
        free_[sizeClass] = free_[sizeClass]->next;
    } else {
        memory = takeBytes(groups * bytesPerGroup);
    }
    auto* boxes = reinterpret_cast<float*>(memory);
    auto* slots = reinterpret_cast<QuadTreeSlot*>(boxes + std::size_t{16} * groups);
    const std::uint32_t used = node.groupCapacity;
    if (used > 0) {
        std::memcpy(boxes, node.boxes, std::size_t{16} * used * sizeof(float));
        std::memcpy(slots, node.slots, std::size_t{4} * used * sizeof(QuadTreeSlot));
        auto* freed = new (node.boxes) FreeSlots{free_[sizeClass - 1]};
        free_[sizeClass - 1] = freed;
    }
    constexpr float none = std::numeric_limits<float>::infinity();
    for (std::uint32_t g = used; g < groups; ++g)
        for (std::uint32_t lane = 0; lane < 4; ++lane) {
            float* box = boxes + std::size_t{16} * g + lane;
            box[0] = box[8] = none;
            box[4] = box[12] = -none;
        }
    node.boxes = boxes;
    node.slots = slots;
    node.restBoxes = reinterpret_cast<float*>(slots + std::size_t{4} * groups);
    node.groupCapacity = groups;
    node.restStale = true;
}

void QuadTreeStore::reset() {
    nodesUsed_ = 0;
    slab_ = 0;
    bytesUsed_ = 0;
    std::fill(std::begin(free_), std::end(free_), nullptr);
}

}  // namespace bc
