// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RGBAColour.h"
#include "core/TexCoord.h"
#include "core/Vector.h"
#include "core/Vertex.h"

#include <cstddef>
#include <string>
#include <vector>

namespace bc {

/// Up to four corners in drawing order, and a separate list of colours. Skies store there, one for
/// each corner, by how much that corner's colour changes in a second.
class Quad {
  public:
    static constexpr std::size_t maxVertices = 4;

    void addVertex(const Vector& p, const RGBAColour& c, const TexCoord& t) {
        addVertex(make(p, c, t));
    }
    void addVertex(const Vector& p, const RGBAColour& c) { addVertex(make(p, c, {})); }
    /// A fifth corner is ignored.
    void addVertex(const Vertex& v) {
        if (vertices_.size() < maxVertices)
            vertices_.push_back(v);
    }
    /// Replaces corner i (from 0). Without a coordinate the corner keeps its old one. An i for
    /// which there is no corner changes nothing.
    void setVertex(std::size_t i, const Vector& p, const RGBAColour& c, const TexCoord& t) {
        if (i < vertices_.size())
            vertices_[i] = make(p, c, t);
    }
    void setVertex(std::size_t i, const Vector& p, const RGBAColour& c) {
        if (i < vertices_.size())
            vertices_[i] = make(p, c, {vertices_[i].u, vertices_[i].v});
    }
    void addColour(float r, float g, float b, float a) { colours_.emplace_back(r, g, b, a); }

    [[nodiscard]] const std::vector<Vertex>& vertices() const { return vertices_; }
    [[nodiscard]] std::vector<Vertex>& vertices() { return vertices_; }
    [[nodiscard]] const std::vector<RGBAColour>& colours() const { return colours_; }
    [[nodiscard]] std::vector<RGBAColour>& colours() { return colours_; }

    std::string name;

  private:
    static Vertex make(const Vector& p, const RGBAColour& c, const TexCoord& t) {
        return {p.x, p.y, p.z, c.r, c.g, c.b, c.a, t.u, t.v};
    }

    std::vector<Vertex> vertices_;
    std::vector<RGBAColour> colours_;
};

}  // namespace bc
