// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"
#include "world/BodyIndex.h"
#include "world/Trace.h"

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <memory>
#include <vector>

namespace bc {

class Body;
class Frustum;
class IndexHits;
class IRenderer;
class QuadTreeStore;
struct QuadTreeNode;

/// The spatial index of a level: a square cut into quarters as bodies crowd. A body is stored in
/// the smallest node that contains its whole polygon. Bodies are not owned; a body that is deleted
/// leaves the tree by itself.
///
/// Results come in a fixed order that play depends on: a node before its quarters, the quarters in
/// their order (upper left, upper right, lower left, lower right), in a node the bodies in the
/// order in which they came in, where a body that is re-inserted comes in anew.
class QuadTree final : public BodyIndex {
  public:
    /// A leaf holds this many; the next one splits it, unless it is an entity.
    static constexpr int leafCapacity = 20;
    /// Nodes of less than twice this side (world units) are not split by crowding.
    static constexpr float minNodeSize = 8;
    static constexpr int maxDepth = 16;
    /// The most that init cuts at once.
    static constexpr int maxInitialDepth = 6;

    QuadTree();
    ~QuadTree() override;
    QuadTree(const QuadTree&) = delete;
    QuadTree& operator=(const QuadTree&) = delete;

    /// Starts anew with a square of side size around centre, cut depth times. False, with an empty
    /// tree, for a depth below 0 or above maxInitialDepth and for a square that reaches far beyond
    /// Body::maxCoordinate.
    bool init(const Vector& centre, float size, int depth);
    /// No nodes, no bodies.
    void clear();
    [[nodiscard]] bool isEmpty() const { return root_ == nullptr; }
    [[nodiscard]] const Vector& centre() const { return centre_; }
    [[nodiscard]] float size() const { return size_; }
    /// Counts the bodies' order anew from the start, which the tree does by itself before it runs
    /// out of numbers. Nothing else changes.
    void renumber();
    /// False: leaves take in any number of bodies.
    void setSplittable(bool splittable) { splittable_ = splittable; }

    /// False when the body's polygon is not wholly inside the square; it is then in no node.
    bool insert(Body& body);
    /// Nothing happens when it is not in the tree.
    void remove(Body& body) override;
    /// After a move: takes it out and inserts it again, at the end of its node's list.
    bool reinsert(Body& body);
    /// Every corner inside the square or on its border; a body without corners is contained.
    [[nodiscard]] bool contains(const Body& body) const;

    /// Appends the bodies whose swept bounds overlap body's, as far as the squares of the nodes
    /// that store them do so too; for a static body only massive ones. The body itself is among
    /// them unless withSelf is false.
    void queryCandidates(const Body& body, std::vector<Body*>& out, bool withSelf = true) const;
    /// Brings what queryCandidates will read nearer to the processor, to be called a few bodies
    /// ahead of it.
    void prefetchFor(const Body& body) const;
    /// Appends the bodies whose pos is within their sweptRadius + radius of the point.
    void queryRadius(const Vector& point, float radius, std::vector<Body*>& out) const;
    /// Appends a hit for each body whose outline the ray crosses, at the first crossing.
    void trace(const Ray& ray, TraceResults& out, bool includeNonSolid = false) const;
    /// Appends the bodies in view and sets every body's inView. cullNodes: leaves out whole nodes
    /// out of view; cullBodies: tests each body's bounds as well.
    void gatherVisible(const Frustum& view, bool cullNodes, bool cullBodies,
                       std::vector<Body*>& out);

    // Of the last gathering.
    [[nodiscard]] int visitedNodes() const { return visitedNodes_; }
    [[nodiscard]] int consideredBodies() const { return consideredBodies_; }
    [[nodiscard]] int gatheredBodies() const { return gatheredBodies_; }

    /// Every body, in the order in which they came in or were re-inserted. Not for hot paths.
    [[nodiscard]] std::vector<Body*> inOrder() const;

    /// Node outlines and centres as lines at a depth, each level fainter.
    void drawDebug(IRenderer& renderer, float depth, float alpha = 255) const;
    /// Nodes with centre, size and the ids of their bodies, in order.
    void dump(std::ostream& out) const;

    struct NodeView {
        float centreX, centreY, size;
        int depth;
        bool leaf;
        /// In list order.
        const std::vector<Body*>& bodies;
    };
    /// Visits every node, in search order. Not for hot paths.
    void forEachNode(const std::function<void(const NodeView&)>& visit) const;
    [[nodiscard]] int nodeCount() const;
    void boundsChanged(const Body& body) override;
    void geometryChanged(const Body& body) override;
    [[nodiscard]] int depthOf(const Body& body) const override;

  private:
    void insertAt(QuadTreeNode& node, Body& body);
    void store(QuadTreeNode& node, std::uint32_t entry);
    void takeOut(std::uint32_t entry);
    std::uint32_t nextSequence();
    void split(QuadTreeNode& node);
    /// The node's bodies in list order, in the scratch space.
    [[nodiscard]] const IndexHits& listed(const QuadTreeNode& node) const;
    void cut(QuadTreeNode& node);
    [[nodiscard]] bool hasRoomFor(const Body& body, const QuadTreeNode& node,
                                  std::uint32_t stored) const;

    std::unique_ptr<QuadTreeStore> store_;
    QuadTreeNode* root_ = nullptr;
    Vector centre_;
    float size_ = 0;
    bool splittable_ = true;
    /// Grows with every insertion and orders the bodies of a node.
    std::uint32_t sequence_ = 0;
    int visitedNodes_ = 0;
    int consideredBodies_ = 0;
    int gatheredBodies_ = 0;
};

}  // namespace bc
