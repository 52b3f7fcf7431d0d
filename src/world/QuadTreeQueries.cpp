// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// What the tree is asked: candidates, circles and traces.
#include "world/Body.h"
#include "world/QuadTree.h"
#include "world/QuadTreeStore.h"
#include "world/Simd.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace bc {

namespace {

/// Nodes still to be searched: at most three quarters a level wait while the fourth is descended.
class NodeStack {
  public:
    explicit NodeStack(const QuadTreeNode* root) { nodes_[size_++] = root; }
    [[nodiscard]] bool empty() const { return size_ == 0; }
    const QuadTreeNode* pop() { return nodes_[--size_]; }
    /// The quarters whose bits are set; the first of them comes out first.
    void pushQuarters(const QuadTreeNode& node, int mask) {
        for (int q = 3; q >= 0; --q) {
            nodes_[size_] = node.quarters + q;
            size_ += (mask >> q) & 1;
        }
    }

  private:
    static constexpr int capacity = 3 * (QuadTree::maxDepth + 1) + 8;
    const QuadTreeNode* nodes_[capacity];
    int size_ = 0;
};

}  // namespace

void QuadTree::queryCandidates(const Body& body, std::vector<Body*>& out, bool withSelf) const {
    if (root_ == nullptr)
        return;
    store_->grid.query(body, store_->entries.isOf(body.entry_, body), withSelf, store_->hits);
    for (const IndexHit& hit : store_->hits)
        out.push_back(hit.body);
}

void QuadTree::prefetchFor(const Body& body) const {
    if (store_->entries.isOf(body.entry_, body))
        store_->grid.prefetch(body.entry_);
}

void QuadTree::queryRadius(const Vector& point, float radius, std::vector<Body*>& out) const {
    if (root_ == nullptr)
        return;
    IndexHits& hits = store_->hits;
    NodeStack stack(root_);
    while (!stack.empty()) {
        const QuadTreeNode& node = *stack.pop();
        const float dx = point.x - std::clamp(point.x, node.minX, node.maxX);
        const float dy = point.y - std::clamp(point.y, node.minY, node.maxY);
        if (!(dx * dx + dy * dy <= radius * radius))
            continue;
        hits.clear();
        for (std::uint32_t s = 0; s < node.count; ++s) {
            const IndexEntry& entry = store_->entries[node.slots[s]];
            if (planarDistance(point, entry.body->pos) <= entry.body->sweptRadius + radius)
                hits.add({0, entry.sequence, entry.body});
        }
        hits.sort();
        for (const IndexHit& hit : hits)
            out.push_back(hit.body);
        if (node.occupied != 0)
            stack.pushQuarters(node, node.occupied);
    }
}

namespace {

/// A ray made ready for quick refusals: a box is out of its way when the box around the ray misses
/// it or when all its corners are on one side of the ray's line. Slack allows for rounding, so that
/// nothing the ray touches is refused.
class RayLanes {
  public:
    explicit RayLanes(const Ray& ray) {
        const float far = std::max({std::fabs(ray.start.x), std::fabs(ray.start.y),
                                    std::fabs(ray.end.x), std::fabs(ray.end.y), 1.0F});
        const float slack = far * 2e-6F;
        startX_ = _mm_set1_ps(ray.start.x);
        startY_ = _mm_set1_ps(ray.start.y);
        dx_ = _mm_set1_ps(ray.direction.x);
        dy_ = _mm_set1_ps(ray.direction.y);
        absDx_ = _mm_set1_ps(std::fabs(ray.direction.x));
        absDy_ = _mm_set1_ps(std::fabs(ray.direction.y));
        minX_ = _mm_set1_ps(std::min(ray.start.x, ray.end.x) - slack);
        maxX_ = _mm_set1_ps(std::max(ray.start.x, ray.end.x) + slack);
        minY_ = _mm_set1_ps(std::min(ray.start.y, ray.end.y) - slack);
        maxY_ = _mm_set1_ps(std::max(ray.start.y, ray.end.y) + slack);
        slack_ = _mm_set1_ps(slack);
    }

    /// Bit i: box i of four may be in the ray's way.
    [[nodiscard]] int meets(const float* minXs, const float* maxXs, const float* minYs,
                            const float* maxYs) const {
        const __m128 minX = _mm_load_ps(minXs);
        const __m128 maxX = _mm_load_ps(maxXs);
        const __m128 minY = _mm_load_ps(minYs);
        const __m128 maxY = _mm_load_ps(maxYs);
        const __m128 boxes =
            _mm_and_ps(_mm_and_ps(_mm_cmple_ps(minX_, maxX), _mm_cmpge_ps(maxX_, minX)),
                       _mm_and_ps(_mm_cmple_ps(minY_, maxY), _mm_cmpge_ps(maxY_, minY)));
        if (_mm_movemask_ps(boxes) == 0)
            return 0;
        const __m128 half = _mm_set1_ps(0.5F);
        const __m128 cx = _mm_sub_ps(_mm_mul_ps(_mm_add_ps(minX, maxX), half), startX_);
        const __m128 cy = _mm_sub_ps(_mm_mul_ps(_mm_add_ps(minY, maxY), half), startY_);
        const __m128 hx = _mm_add_ps(_mm_mul_ps(_mm_sub_ps(maxX, minX), half), slack_);
        const __m128 hy = _mm_add_ps(_mm_mul_ps(_mm_sub_ps(maxY, minY), half), slack_);
        const __m128 side = _mm_sub_ps(_mm_mul_ps(dx_, cy), _mm_mul_ps(dy_, cx));
        const __m128 reach = _mm_add_ps(_mm_mul_ps(absDx_, hy), _mm_mul_ps(absDy_, hx));
        const __m128 crossed = _mm_cmple_ps(_mm_andnot_ps(_mm_set1_ps(-0.0F), side), reach);
        return _mm_movemask_ps(_mm_and_ps(boxes, crossed));
    }
    [[nodiscard]] int meetsQuarters(const QuadTreeNode& node) const {
        return meets(node.quarterMinX, node.quarterMaxX, node.quarterMinY, node.quarterMaxY);
    }

  private:
    __m128 startX_, startY_, dx_, dy_, absDx_, absDy_, minX_, maxX_, minY_, maxY_, slack_;
};

/// The smallest parameter of the ray in [0, 1] at which it crosses an edge of the polygon.
bool crossing(const Ray& ray, const std::vector<Vector>& corners, float& t) {
    bool found = false;
    const Vector* from = corners.empty() ? nullptr : &corners.back();
    for (const Vector& to : corners) {
        const float ex = to.x - from->x;
        const float ey = to.y - from->y;
        const float sx = from->x - ray.start.x;
        const float sy = from->y - ray.start.y;
        from = &to;
        const float denominator = ray.direction.x * ey - ray.direction.y * ex;
        if (denominator == 0)
            continue;
        const float along = (sx * ey - sy * ex) / denominator;
        const float across = (sx * ray.direction.y - sy * ray.direction.x) / denominator;
        if (along >= 0 && along <= 1 && across >= 0 && across <= 1 && (!found || along < t)) {
            found = true;
            t = along;
        }
    }
    return found;
}

void refreshRestBoxes(const QuadTreeNode& node, const IndexEntries& entries) {
    for (std::uint32_t s = 0; s < 4 * node.groups(); ++s) {
        constexpr float none = std::numeric_limits<float>::infinity();
        const Box box = s < node.count ? entries[node.slots[s]].body->worldBox()
                                       : Box{none, -none, none, -none};
        float* lane = node.restBoxes + std::size_t{16} * (s / 4) + s % 4;
        lane[0] = box.minX;
        lane[4] = box.maxX;
        lane[8] = box.minY;
        lane[12] = box.maxY;
    }
}

}  // namespace

void QuadTree::trace(const Ray& ray, TraceResults& out, bool includeNonSolid) const {
    constexpr float farthest = 1e9F;
    if (root_ == nullptr || !simd::within(simd::load(ray.start), farthest) ||
        !simd::within(simd::load(ray.end), farthest))
        return;
    const RayLanes lanes(ray);
    const float length = ray.direction.length();
    alignas(16) const float rootBox[16] = {root_->minX, root_->minX, root_->minX, root_->minX,
                                           root_->maxX, root_->maxX, root_->maxX, root_->maxX,
                                           root_->minY, root_->minY, root_->minY, root_->minY,
                                           root_->maxY, root_->maxY, root_->maxY, root_->maxY};
    if (lanes.meets(rootBox, rootBox + 4, rootBox + 8, rootBox + 12) == 0)
        return;
    IndexHits& hits = store_->hits;
    NodeStack stack(root_);
    while (!stack.empty()) {
        const QuadTreeNode& node = *stack.pop();
        if (node.restStale && node.count > 0) {
            refreshRestBoxes(node, store_->entries);
            node.restStale = false;
        }
        hits.clear();
        for (std::uint32_t g = 0; g < node.groups(); ++g) {
            const float* boxes = node.restBoxes + std::size_t{16} * g;
            auto mask = static_cast<unsigned>(lanes.meets(boxes, boxes + 4, boxes + 8, boxes + 12));
            for (; mask != 0; mask &= mask - 1) {
                const unsigned slot = 4 * g + static_cast<unsigned>(std::countr_zero(mask));
                const IndexEntry& entry = store_->entries[node.slots[slot]];
                hits.add({0, entry.sequence, entry.body});
            }
        }
        hits.sort();
        for (const IndexHit& hit : hits) {
            float t = 0;
            if ((hit.body->solid || includeNonSolid) && crossing(ray, hit.body->worldVertices(), t))
                out.push_back({t, length * t, ray.start + ray.direction * t, hit.body});
        }
        if (node.occupied != 0)
            stack.pushQuarters(node, lanes.meetsQuarters(node) & node.occupied);
    }
}

}  // namespace bc
