// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// How bodies come into the tree and leave it.
#include "world/QuadTree.h"

#include "world/Body.h"
#include "world/QuadTreeStore.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <utility>

namespace bc {

namespace {

bool contains(const QuadTreeNode& node, const Box& box) {
    return box.minX >= node.minX && box.maxX <= node.maxX && box.minY >= node.minY &&
           box.maxY <= node.maxY;
}

/// Not even touching the border: no neighbour of the node, nor of a node above it, contains the
/// box.
bool containsWhollyInside(const QuadTreeNode& node, const Box& box) {
    return box.minX > node.minX && box.maxX < node.maxX && box.minY > node.minY &&
           box.maxY < node.maxY;
}

/// Bit q: quarter q contains the box.
unsigned fittingQuarters(const QuadTreeNode& node, const Box& box) {
    const __m128 inX =
        _mm_and_ps(_mm_cmple_ps(_mm_load_ps(node.quarterMinX), _mm_set1_ps(box.minX)),
                   _mm_cmpge_ps(_mm_load_ps(node.quarterMaxX), _mm_set1_ps(box.maxX)));
    const __m128 inY =
        _mm_and_ps(_mm_cmple_ps(_mm_load_ps(node.quarterMinY), _mm_set1_ps(box.minY)),
                   _mm_cmpge_ps(_mm_load_ps(node.quarterMaxY), _mm_set1_ps(box.maxY)));
    return static_cast<unsigned>(_mm_movemask_ps(_mm_and_ps(inX, inY)));
}

/// Tells the nodes above that the node, empty until now, holds something.
void markOccupied(const QuadTreeNode& node) {
    for (const QuadTreeNode* n = &node; n->parent != nullptr; n = n->parent) {
        const bool known = n->parent->occupied != 0 || n->parent->count != 0;
        n->parent->occupied |= static_cast<std::uint8_t>(1U << n->index);
        if (known)
            return;
    }
}

void markEmpty(const QuadTreeNode& node) {
    for (const QuadTreeNode* n = &node; n->parent != nullptr && n->count == 0 && n->occupied == 0;
         n = n->parent)
        n->parent->occupied &= static_cast<std::uint8_t>(~(1U << n->index));
}

}  // namespace

QuadTree::QuadTree() : store_(std::make_unique<QuadTreeStore>()) {}

QuadTree::~QuadTree() {
    clear();
}

bool QuadTree::init(const Vector& centre, float size, int depth) {
    clear();
    constexpr float farthest = 4 * Body::maxCoordinate;
    if (depth < 0 || depth > maxInitialDepth || !(size >= 0 && size <= farthest) ||
        !simd::within(simd::load(centre), farthest))
        return false;
    centre_ = centre;
    size_ = size;
    const float half = size / 2;
    root_ = store_->takeNodes();
    root_->centreX = centre.x;
    root_->centreY = centre.y;
    root_->size = size;
    root_->minX = centre.x - half;
    root_->maxX = centre.x + half;
    root_->minY = centre.y - half;
    root_->maxY = centre.y + half;
    store_->grid.init(root_->minX, root_->minY, size);
    std::vector<QuadTreeNode*> level{root_};
    for (int d = 0; d < depth; ++d) {
        std::vector<QuadTreeNode*> next;
        for (QuadTreeNode* node : level) {
            cut(*node);
            for (int q = 0; q < 4; ++q)
                next.push_back(node->quarters + q);
        }
        level = std::move(next);
    }
    return true;
}

void QuadTree::clear() {
    if (root_ == nullptr)
        return;
    std::vector<QuadTreeNode*> nodes{root_};
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const QuadTreeNode& node = *nodes[i];
        for (std::uint32_t s = 0; s < node.count; ++s)
            store_->entries[node.slots[s]].body->index_ = nullptr;
        for (int q = 0; q < 4 && node.quarters != nullptr; ++q)
            nodes.push_back(node.quarters + q);
    }
    root_ = nullptr;
    store_->reset();
    visitedNodes_ = consideredBodies_ = gatheredBodies_ = 0;
}

/// Gives a leaf its four quarters. They share the leaf's own edges and its middle lines, so that
/// neither gaps nor overlaps come of rounding.
void QuadTree::cut(QuadTreeNode& node) {
    QuadTreeNode* quarters = store_->takeNodes();
    const float half = node.size / 2;
    for (unsigned i = 0; i < 4; ++i) {
        const bool right = i % 2 == 1;
        const bool upper = i < 2;
        QuadTreeNode& quarter = quarters[i];
        quarter.parent = &node;
        quarter.index = static_cast<std::uint8_t>(i);
        quarter.depth = static_cast<std::uint8_t>(node.depth + 1);
        quarter.order =
            ((node.order & ~std::uint64_t{255}) | std::uint64_t{i} << (62 - 2 * node.depth)) |
            quarter.depth;
        quarter.size = half;
        quarter.centreX = node.centreX + (right ? half / 2 : -half / 2);
        quarter.centreY = node.centreY + (upper ? half / 2 : -half / 2);
        quarter.minX = node.quarterMinX[i] = right ? node.centreX : node.minX;
        quarter.maxX = node.quarterMaxX[i] = right ? node.maxX : node.centreX;
        quarter.minY = node.quarterMinY[i] = upper ? node.centreY : node.minY;
        quarter.maxY = node.quarterMaxY[i] = upper ? node.maxY : node.centreY;
    }
    node.quarters = quarters;
}

bool QuadTree::contains(const Body& body) const {
    return root_ != nullptr && bc::contains(*root_, body.worldBox());
}

bool QuadTree::hasRoomFor(const Body& body, const QuadTreeNode& node, std::uint32_t stored) const {
    return stored < leafCapacity || !splittable_ || body.entity || node.depth >= maxDepth ||
           node.size < 2 * minNodeSize;
}

bool QuadTree::insert(Body& body) {
    if (body.index_ != nullptr)
        body.index_->remove(body);
    if (!contains(body))
        return false;
    body.index_ = this;
    body.entry_ = store_->entries.add(body);
    store_->grid.add(body.entry_, body.bounds);
    insertAt(*root_, body);
    return true;
}

/// For a body that the node contains.
void QuadTree::insertAt(QuadTreeNode& node, Body& body) {
    const Box box = body.worldBox();
    QuadTreeNode* n = &node;
    for (;;) {
        if (n->quarters == nullptr) {
            if (hasRoomFor(body, *n, n->count))
                break;
            split(*n);
        }
        const unsigned fitting = fittingQuarters(*n, box);
        if (fitting == 0)
            break;
        n = n->quarters + std::countr_zero(fitting);
    }
    store(*n, body.entry_);
}

void QuadTree::store(QuadTreeNode& node, std::uint32_t at) {
    if (node.count == 4 * node.groupCapacity)
        store_->growSlots(node);
    if (node.count == 0 && node.occupied == 0)
        markOccupied(node);
    node.slots[node.count] = at;
    node.restStale = true;
    IndexEntry& entry = store_->entries[at];
    entry.node = &node;
    entry.slot = node.count++;
    entry.sequence = nextSequence();
}

std::uint32_t QuadTree::nextSequence() {
    if (sequence_ == std::numeric_limits<std::uint32_t>::max())
        renumber();
    return ++sequence_;
}

void QuadTree::takeOut(std::uint32_t at) {
    const IndexEntry& entry = store_->entries[at];
    QuadTreeNode& node = *entry.node;
    const std::uint32_t last = node.slots[--node.count];
    node.slots[entry.slot] = last;
    store_->entries[last].slot = entry.slot;
    node.restStale = true;
    if (node.count == 0)
        markEmpty(node);
}

void QuadTree::remove(Body& body) {
    if (body.index_ != this)
        return;
    store_->grid.remove(body.entry_);
    takeOut(body.entry_);
    store_->entries.remove(body.entry_);
    body.index_ = nullptr;
}

bool QuadTree::reinsert(Body& body) {
    if (body.index_ != this)
        return insert(body);
    const Box box = body.worldBox();
    IndexEntry& entry = store_->entries[body.entry_];
    QuadTreeNode& node = *entry.node;
    if (containsWhollyInside(node, box) &&
        (node.quarters == nullptr ? hasRoomFor(body, node, node.count - 1)
                                  : fittingQuarters(node, box) == 0)) {
        // It would come back to the same node: only its place in the order changes.
        entry.sequence = nextSequence();
        if (!node.restStale)
            node.restStale = true;
        store_->grid.update(body.entry_, body.bounds);
        return true;
    }
    if (!bc::contains(*root_, box)) {
        remove(body);
        return false;
    }
    takeOut(body.entry_);
    store_->grid.update(body.entry_, body.bounds);
    insertAt(*root_, body);
    return true;
}

void QuadTree::split(QuadTreeNode& node) {
    cut(node);
    const IndexEntries& entries = store_->entries;
    std::sort(node.slots, node.slots + node.count, [&](std::uint32_t a, std::uint32_t b) {
        return entries[a].sequence < entries[b].sequence;
    });
    // All of them out, then each in again in order; what fits no quarter comes back to a slot
    // before the one that is read.
    const std::uint32_t count = std::exchange(node.count, 0);
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::uint32_t at = node.slots[i];
        Body& body = *entries[at].body;
        const unsigned fitting = fittingQuarters(node, body.worldBox());
        if (fitting == 0)
            store(node, at);
        else
            insertAt(node.quarters[std::countr_zero(fitting)], body);
    }
    node.restStale = true;
}

void QuadTree::boundsChanged(const Body& body) {
    store_->grid.update(body.entry_, body.bounds);
}

void QuadTree::geometryChanged(const Body& body) {
    store_->entries[body.entry_].node->restStale = true;
}

int QuadTree::depthOf(const Body& body) const {
    return store_->entries[body.entry_].node->depth;
}

}  // namespace bc
