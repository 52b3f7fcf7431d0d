// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class Body;

/// The spatial index as seen by the bodies in it. A body tells it of changes and leaves it when it
/// is deleted. One implementation, QuadTree.
class BodyIndex {
  public:
    virtual ~BodyIndex() = default;
    /// Nothing happens when the body is not in the index.
    virtual void remove(Body& body) = 0;
    /// The swept bounds of a body in the index have changed.
    virtual void boundsChanged(const Body& body) = 0;
    /// The polygon of a body in the index has changed or moved.
    virtual void geometryChanged(const Body& body) = 0;
    /// Depth of the node that stores a body of the index; the root has 0.
    [[nodiscard]] virtual int depthOf(const Body& body) const = 0;
};

}  // namespace bc
