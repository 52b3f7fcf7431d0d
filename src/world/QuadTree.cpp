// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// How bodies come into the tree and leave it.
#include "world/QuadTree.h"

#include "world/Body.h"
#include "world/QuadTreeNode.h"
#include "world/Simd.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace bc {

namespace {

constexpr float none = std::numeric_limits<float>::infinity();

void place(QuadTreeNode& node, float centreX, float centreY, float size) {
    const float half = size / 2;
    node.centreX = centreX;
    node.centreY = centreY;
    node.size = size;
    node.minX = centreX - half;
    node.maxX = centreX + half;
    node.minY = centreY - half;
    node.maxY = centreY + half;
}

void setLane(float* boxes, std::uint32_t slot, float minX, float maxX, float minY, float maxY) {
    float* box = boxes + std::size_t{16} * (slot / 4) + slot % 4;
    box[0] = minX;
    box[4] = maxX;
    box[8] = minY;
    box[12] = maxY;
}

void copyLane(float* boxes, std::uint32_t from, std::uint32_t to) {
    const float* box = boxes + std::size_t{16} * (from / 4) + from % 4;
    setLane(boxes, to, box[0], box[4], box[8], box[12]);
}

void setSweptBox(QuadTreeNode& node, std::uint32_t slot, const BRect& bounds) {
    setLane(node.boxes, slot, bounds.minX, bounds.maxX, bounds.minY, bounds.maxY);
}

/// Tells the nodes above that the node, empty until now, holds something, or that it is empty now.
void markOccupied(QuadTreeNode& node) {
    for (QuadTreeNode* n = &node; n->parent != nullptr; n = n->parent) {
        const bool known = n->parent->occupied != 0 || n->parent->count != 0;
        n->parent->occupied |= static_cast<std::uint8_t>(1U << n->index);
        if (known)
            return;
    }
}

void markEmpty(QuadTreeNode& node) {
    for (QuadTreeNode* n = &node; n->parent != nullptr && n->count == 0 && n->occupied == 0;
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
    root_ = store_->takeNodes();
    root_->tree = this;
    place(*root_, centre.x, centre.y, size);
    const float reach = std::max(std::fabs(centre.x), std::fabs(centre.y)) + size;
    rim_ = 8 * (std::nextafter(reach, none) - reach);
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
            node.slots[s].body->node_ = nullptr;
        for (int q = 0; q < 4 && node.quarters != nullptr; ++q)
            nodes.push_back(node.quarters + q);
    }
    root_ = nullptr;
    store_->reset();
    visitedNodes_ = consideredBodies_ = gatheredBodies_ = 0;
}

/// Gives a leaf its four quarters.
void QuadTree::cut(QuadTreeNode& node) {
    QuadTreeNode* quarters = store_->takeNodes();
    const float half = node.size / 2;
    const float q = half / 2;
    const float x[4] = {node.centreX - q, node.centreX + q, node.centreX - q, node.centreX + q};
    const float y[4] = {node.centreY + q, node.centreY + q, node.centreY - q, node.centreY - q};
    for (int i = 0; i < 4; ++i) {
        QuadTreeNode& quarter = quarters[i];
        quarter.tree = this;
        quarter.parent = &node;
        quarter.index = static_cast<std::uint8_t>(i);
        quarter.depth = static_cast<std::uint8_t>(node.depth + 1);
        place(quarter, x[i], y[i], half);
        node.quarterMinX[i] = quarter.minX;
        node.quarterMaxX[i] = quarter.maxX;
        node.quarterMinY[i] = quarter.minY;
        node.quarterMaxY[i] = quarter.maxY;
    }
    node.quarters = quarters;
}

namespace {

/// Bit q: quarter q contains the box.
int fittingQuarters(const Box& box, const QuadTreeNode& node) {
    const __m128 inX =
        _mm_and_ps(_mm_cmple_ps(_mm_loadu_ps(node.quarterMinX), _mm_set1_ps(box.minX)),
                   _mm_cmpge_ps(_mm_loadu_ps(node.quarterMaxX), _mm_set1_ps(box.maxX)));
    const __m128 inY =
        _mm_and_ps(_mm_cmple_ps(_mm_loadu_ps(node.quarterMinY), _mm_set1_ps(box.minY)),
                   _mm_cmpge_ps(_mm_loadu_ps(node.quarterMaxY), _mm_set1_ps(box.maxY)));
    return _mm_movemask_ps(_mm_and_ps(inX, inY));
}

/// Inside the node by more than rim: no neighbour of it, nor of a node above it, contains the box.
bool wellInside(const Box& box, const QuadTreeNode& node, float rim) {
    return box.minX > node.minX + rim && box.maxX < node.maxX - rim && box.minY > node.minY + rim &&
           box.maxY < node.maxY - rim;
}

}  // namespace

bool QuadTree::contains(const Body& body) const {
    const Box box = body.worldBox();
    return root_ != nullptr && box.minX >= root_->minX && box.maxX <= root_->maxX &&
           box.minY >= root_->minY && box.maxY <= root_->maxY;
}

bool QuadTree::hasRoomFor(const Body& body, const QuadTreeNode& node, std::uint32_t stored) const {
    return stored < leafCapacity || !splittable_ || body.entity || node.depth >= maxDepth ||
           node.size < 2 * minNodeSize;
}

bool QuadTree::insert(Body& body) {
    if (body.node_ != nullptr)
        removeFromItsTree(body);
    if (!contains(body))
        return false;
    insertAt(*root_, body);
    return true;
}

/// For a body that the node contains.
void QuadTree::insertAt(QuadTreeNode& node, Body& body) {
    QuadTreeNode* n = &node;
    for (;;) {
        if (n->quarters == nullptr) {
            if (hasRoomFor(body, *n, n->count))
                break;
            split(*n);
        }
        const int fitting = fittingQuarters(body.worldBox(), *n);
        if (fitting == 0)
            break;
        n = n->quarters + std::countr_zero(static_cast<unsigned>(fitting));
    }
    store(*n, body);
}

void QuadTree::store(QuadTreeNode& node, Body& body) {
    if (node.count == 4 * node.groupCapacity)
        store_->growSlots(node);
    if (node.count == 0 && node.occupied == 0)
        markOccupied(node);
    const std::uint32_t slot = node.count++;
    node.slots[slot] = {&body, ++sequence_};
    node.restStale = true;
    body.node_ = &node;
    body.slot_ = slot;
    setSweptBox(node, slot, body.bounds);
}

void QuadTree::takeOut(QuadTreeNode& node, std::uint32_t slot) {
    const std::uint32_t last = --node.count;
    node.slots[slot].body->node_ = nullptr;
    if (slot != last) {
        node.slots[slot] = node.slots[last];
        node.slots[slot].body->slot_ = slot;
        copyLane(node.boxes, last, slot);
    }
    setLane(node.boxes, last, none, -none, none, -none);
    node.restStale = true;
    if (node.count == 0)
        markEmpty(node);
}

void QuadTree::remove(Body& body) {
    if (body.node_ != nullptr && body.node_->tree == this)
        takeOut(*body.node_, body.slot_);
}

void QuadTree::removeFromItsTree(Body& body) {
    body.node_->tree->remove(body);
}

bool QuadTree::reinsert(Body& body) {
    QuadTreeNode* node = body.node_;
    if (node == nullptr || node->tree != this)
        return insert(body);
    const Box box = body.worldBox();
    const bool stays = wellInside(box, *node, rim_) &&
                       (node->quarters == nullptr ? hasRoomFor(body, *node, node->count - 1)
                                                  : fittingQuarters(box, *node) == 0);
    if (!stays) {
        takeOut(*node, body.slot_);
        return insert(body);
    }
    // It would come back to the same node: only its place in the order changes.
    node->slots[body.slot_].sequence = ++sequence_;
    node->restStale = true;
    setSweptBox(*node, body.slot_, body.bounds);
    return true;
}

void QuadTree::split(QuadTreeNode& node) {
    cut(node);
    const auto begin = node.slots;
    std::sort(begin, begin + node.count,
              [](const QuadTreeSlot& a, const QuadTreeSlot& b) { return a.sequence < b.sequence; });
    // All of them out, then each in again in order; what fits no quarter comes back to a slot
    // before the one that is read.
    const std::uint32_t count = node.count;
    node.count = 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        Body& body = *node.slots[i].body;
        const int fitting = fittingQuarters(body.worldBox(), node);
        if (fitting == 0)
            store(node, body);
        else
            insertAt(node.quarters[std::countr_zero(static_cast<unsigned>(fitting))], body);
    }
    for (std::uint32_t slot = node.count; slot < count; ++slot)
        setLane(node.boxes, slot, none, -none, none, -none);
    node.restStale = true;
}

void QuadTree::boundsChanged(const Body& body) {
    setSweptBox(*body.node_, body.slot_, body.bounds);
}

void QuadTree::geometryChanged(const Body& body) {
    body.node_->restStale = true;
}

int QuadTree::depthOf(const Body& body) {
    return body.node_ != nullptr ? body.node_->depth : -1;
}

}  // namespace bc
