// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "world/QuadTreeStore.h"

#include <algorithm>
#include <new>

namespace bc {

namespace {

constexpr std::size_t bytesPerGroup = 16 * sizeof(float) + 4 * sizeof(std::uint32_t);

}  // namespace

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
    // The boxes come first: they are read in groups and want the alignment.
    auto* boxes = reinterpret_cast<float*>(memory);
    auto* slots = reinterpret_cast<std::uint32_t*>(boxes + std::size_t{16} * groups);
    if (node.groupCapacity > 0) {
        std::copy_n(node.slots, node.count, slots);
        free_[sizeClass - 1] = new (node.restBoxes) FreeSlots{free_[sizeClass - 1]};
    }
    node.restBoxes = boxes;
    node.slots = slots;
    node.groupCapacity = groups;
    node.restStale = true;
}

void QuadTreeStore::reset() {
    nodesUsed_ = 0;
    slab_ = 0;
    bytesUsed_ = 0;
    std::fill(std::begin(free_), std::end(free_), nullptr);
    entries.clear();
}

}  // namespace bc
