// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// What the tree shows: the bodies in view, its own outlines, its text form.
#include "core/Text.h"
#include "core/Vertex.h"
#include "ports/IRenderer.h"
#include "view/Frustum.h"
#include "world/Body.h"
#include "world/QuadTree.h"
#include "world/QuadTreeStore.h"

#include <ostream>

namespace bc {

namespace {

template <class Visit>
void walk(const QuadTreeNode& node, Visit& visit) {
    if (!visit(node) || node.quarters == nullptr)
        return;
    for (int q = 0; q < 4; ++q)
        walk(node.quarters[q], visit);
}

}  // namespace

const IndexHits& QuadTree::listed(const QuadTreeNode& node) const {
    IndexHits& hits = store_->hits;
    hits.clear();
    for (std::uint32_t s = 0; s < node.count; ++s) {
        const IndexEntry& entry = store_->entries[node.slots[s]];
        hits.add({0, entry.sequence, entry.body});
    }
    hits.sort();
    return hits;
}

void QuadTree::renumber() {
    std::uint32_t next = 0;
    const auto visit = [&](const QuadTreeNode& node) {
        for (const IndexHit& hit : listed(node))
            store_->entries[hit.body->entry_].sequence = ++next;
        return true;
    };
    if (root_ != nullptr)
        walk(*root_, visit);
    sequence_ = next;
}

std::vector<Body*> QuadTree::inOrder() const {
    std::vector<const IndexEntry*> entries;
    for (const IndexEntry& entry : store_->entries.entries)
        if (entry.body != nullptr)
            entries.push_back(&entry);
    std::sort(entries.begin(), entries.end(),
              [](const IndexEntry* a, const IndexEntry* b) { return a->sequence < b->sequence; });
    std::vector<Body*> bodies;
    bodies.reserve(entries.size());
    for (const IndexEntry* entry : entries)
        bodies.push_back(entry->body);
    return bodies;
}

void QuadTree::gatherVisible(const Frustum& view, bool cullNodes, bool cullBodies,
                             std::vector<Body*>& out) {
    visitedNodes_ = consideredBodies_ = gatheredBodies_ = 0;
    const auto visit = [&](const QuadTreeNode& node) {
        if (cullNodes && view.isRectOutside(node.minX, node.minY, node.maxX, node.maxY))
            return false;
        ++visitedNodes_;
        consideredBodies_ += static_cast<int>(node.count);
        for (const IndexHit& hit : listed(node)) {
            const BRect& r = hit.body->bounds;
            hit.body->inView = !cullBodies || !view.isRectOutside(r.minX, r.minY, r.maxX, r.maxY);
            if (hit.body->inView) {
                out.push_back(hit.body);
                ++gatheredBodies_;
            }
        }
        return true;
    };
    if (root_ != nullptr)
        walk(*root_, visit);
}

void QuadTree::drawDebug(IRenderer& renderer, float depth, float alpha) const {
    constexpr float fainter = 100;
    constexpr float cross = 2;
    std::vector<Vertex> lines;
    const auto visit = [&](const QuadTreeNode& node) {
        const float a = alpha - fainter * static_cast<float>(node.depth);
        if (a <= 0)
            return false;
        const auto line = [&](float x1, float y1, float x2, float y2) {
            lines.emplace_back(x1, y1, depth, 255.0F, 225.0F, 255.0F, a);
            lines.emplace_back(x2, y2, depth, 255.0F, 225.0F, 255.0F, a);
        };
        line(node.centreX - cross, node.centreY, node.centreX + cross, node.centreY);
        line(node.centreX, node.centreY - cross, node.centreX, node.centreY + cross);
        line(node.minX, node.minY, node.maxX, node.minY);
        line(node.maxX, node.minY, node.maxX, node.maxY);
        line(node.maxX, node.maxY, node.minX, node.maxY);
        line(node.minX, node.maxY, node.minX, node.minY);
        return true;
    };
    if (root_ == nullptr)
        return;
    walk(*root_, visit);
    renderer.drawColouredLines(lines);
}

void QuadTree::forEachNode(const std::function<void(const NodeView&)>& show) const {
    std::vector<Body*> bodies;
    const auto visit = [&](const QuadTreeNode& node) {
        bodies.clear();
        for (const IndexHit& hit : listed(node))
            bodies.push_back(hit.body);
        show({node.centreX, node.centreY, node.size, node.depth, node.quarters == nullptr, bodies});
        return true;
    };
    if (root_ != nullptr)
        walk(*root_, visit);
}

int QuadTree::nodeCount() const {
    int count = 0;
    forEachNode([&](const NodeView&) { ++count; });
    return count;
}

void QuadTree::dump(std::ostream& out) const {
    forEachNode([&](const NodeView& node) {
        out << std::string(static_cast<std::size_t>(2 * node.depth), ' ') << "node "
            << formatFloat(node.centreX) << ',' << formatFloat(node.centreY) << " size "
            << formatFloat(node.size) << " bodies";
        for (const Body* body : node.bodies)
            out << ' ' << body->autoid << ':' << body->id;
        out << '\n';
    });
}

}  // namespace bc
