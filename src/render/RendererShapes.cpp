// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Quads, polygons, lines and beams as corners in eye space.
#include "core/Log.h"
#include "core/Quad.h"
#include "core/Vertex.h"
#include "render/RendererBase.h"

#include <algorithm>
#include <cmath>

namespace bc {

namespace {

/// A beam is never cut into more pieces.
constexpr float maxBeamPieces = 1024;

/// Cuts a number of shapes into grants that the device accepts: use(first, count).
template <class Use>
void inGrants(std::size_t shapes, std::size_t cornersEach, const Use& use) {
    const std::size_t most = RenderDevice::maxCorners / cornersEach;
    for (std::size_t first = 0; first < shapes; first += most)
        use(first, std::min(most, shapes - first));
}

/// Whether a texture coordinate leaves the image, so that it repeats. NaN does.
bool leavesImage(float u, float v) {
    return !(u >= 0 && u <= 1 && v >= 0 && v <= 1);
}

bool leavesImage(std::span<const QuadVertex> corners) {
    return std::any_of(corners.begin(), corners.end(),
                       [](const QuadVertex& c) { return leavesImage(c.u, c.v); });
}

}  // namespace

QuadVertex* RendererBase::allot(Primitive primitive, std::size_t corners, bool tiles) {
    DrawState state = currentState();
    if (state.texture != 0) {
        place_ = device_.placeOf(state.texture, tiles);
        state.texture = place_.texture;
    }
    if (primitive != Primitive::lines)
        state.lineWidth = 1;
    return device_.allot(primitive, state, corners);
}

void RendererBase::put(QuadVertex& out, float x, float y, float z, float u, float v,
                       Colour colour) const {
    const float* m = eye_.m;
    out = {m[0] * x + m[3] * y + m[6] * z + m[9],
           m[1] * x + m[4] * y + m[7] * z + m[10],
           m[2] * x + m[5] * y + m[8] * z + m[11],
           u * place_.scaleU + place_.offsetU,
           v * place_.scaleV + place_.offsetV,
           colour.r,
           colour.g,
           colour.b,
           colour.a};
}

// --- Quads ---

void RendererBase::quad(float x, float y, float z, float w, float h) {
    QuadVertex* out = allot(Primitive::quads, 4);
    if (out == nullptr)
        return;
    put(out[0], x, y, z, 0, 1, colour_);
    put(out[1], x + w, y, z, 1, 1, colour_);
    put(out[2], x + w, y - h, z, 1, 0, colour_);
    put(out[3], x, y - h, z, 0, 0, colour_);
}

void RendererBase::drawQuad(float x, float y, float z, float w, float h) {
    recorder_.operation("drawQuad", x, y, z, w, h);
    quad(x, y, z, w, h);
}

void RendererBase::drawQuad(const Quad& quad) {
    const std::vector<Vertex>& vertices = quad.vertices();
    if (vertices.size() != Quad::maxVertices)
        return;
    recorder_.operation("drawQuadOf", vertices[0].x, vertices[0].y, vertices[0].z, vertices[2].x,
                        vertices[2].y, quad.name);
    const bool tiles = std::any_of(vertices.begin(), vertices.end(),
                                   [](const Vertex& v) { return leavesImage(v.u, v.v); });
    QuadVertex* out = allot(Primitive::quads, 4, tiles);
    if (out == nullptr)
        return;
    for (const Vertex& v : vertices)
        put(*out++, v.x, v.y, v.z, v.u, v.v, toColour({v.r, v.g, v.b, v.a}));
}

void RendererBase::drawTiledQuad(float x, float y, float z, float w, float h) {
    recorder_.operation("drawTiledQuad", x, y, z, w, h);
    logLine(textureName_);
    const Texture* texture = textures_.find(textureName_);
    if (texture == nullptr)
        texture = textures_.byId(textures_.boundId());
    const float tw = texture != nullptr ? static_cast<float>(texture->width) : 1.0F;
    const float th = texture != nullptr ? static_cast<float>(texture->height) : 1.0F;
    QuadVertex* out = allot(Primitive::quads, 4, true);
    if (out == nullptr)
        return;
    put(out[0], x, y, z, x / tw, y / th, colour_);
    put(out[1], x + w, y, z, (x + w) / tw, y / th, colour_);
    put(out[2], x + w, y - h, z, (x + w) / tw, (y - h) / th, colour_);
    put(out[3], x, y - h, z, x / tw, (y - h) / th, colour_);
}

void RendererBase::drawCentredQuad(float x, float y, float z, float halfW, float halfH, bool wrap) {
    recorder_.operation("drawCentredQuad", x, y, z, halfW, halfH, wrap);
    quad(x - halfW, y + halfH, z, halfW * 2, halfH * 2);
}

void RendererBase::drawImage(float x, float y, float z, float w, float h, const std::string& name,
                             bool additive, bool clamp) {
    recorder_.operation("drawImage", x, y, z, w, h, name, additive, clamp);
    blending_ = true;
    blend_ = additive ? Blend::additive : Blend::alpha;
    useTexture(name, clamp);
    quad(x, y, z, w, h);
}

void RendererBase::drawImage(float x, float y, float z, float w, float h, const std::string& name) {
    drawImage(x, y, z, w, h, name, false, false);
}

void RendererBase::drawSprite(const std::string& name, float x, float y, float z, float size) {
    recorder_.operation("drawSprite", name, x, y, z, size);
    colour_ = Colour{};
    useAlphaBlend();
    useTexture(name, false);
    quad(x - size * 0.5F, y + size * 0.5F, z, size, size);
}

void RendererBase::drawQuads(std::span<const QuadVertex> corners) {
    const std::size_t quads = corners.size() / 4;
    if (quads == 0)
        return;
    const QuadVertex& c = corners.front();
    recorder_.operation("drawQuads", quads, c.x, c.y, c.z, +c.r, +c.g, +c.b, +c.a);
    inGrants(quads, 4, [&](std::size_t first, std::size_t count) {
        const auto part = corners.subspan(first * 4, count * 4);
        QuadVertex* out = allot(Primitive::quads, count * 4, texturing_ && leavesImage(part));
        if (out == nullptr)
            return;
        for (const QuadVertex& v : part)
            put(*out++, v.x, v.y, v.z, v.u, v.v, {v.r, v.g, v.b, v.a});
    });
}

void RendererBase::drawScreenQuad(int w, int h, float offsetX, float offsetY) {
    QuadVertex* out = allot(Primitive::quads, 4);
    if (out == nullptr)
        return;
    const float right = offsetX + static_cast<float>(w);
    const float top = offsetY + static_cast<float>(h);
    put(out[0], offsetX, top, 0, 0, 0, colour_);
    put(out[1], offsetX, offsetY, 0, 0, -1, colour_);
    put(out[2], right, offsetY, 0, 1, -1, colour_);
    put(out[3], right, top, 0, 1, 0, colour_);
}

// --- Polygons ---

void RendererBase::drawPolygon(const Vector* points, int count) {
    drawPolygon(points, nullptr, count);
}

void RendererBase::drawPolygon(const Vector* points, const RGBAColour* colours, int count) {
    if (points == nullptr || count < 3)
        return;
    recorder_.operation("drawPolygon", count, points[0].x, points[0].y, points[0].z);
    const auto corner = [&](QuadVertex& out, std::size_t i) {
        const Colour colour = colours != nullptr ? toColour(colours[i]) : colour_;
        put(out, points[i].x, points[i].y, points[i].z, 0, 0, colour);
    };
    inGrants(static_cast<std::size_t>(count) - 2, 3, [&](std::size_t first, std::size_t triangles) {
        QuadVertex* out = allot(Primitive::triangles, triangles * 3);
        for (std::size_t i = first; out != nullptr && i < first + triangles; ++i, out += 3) {
            corner(out[0], 0);
            corner(out[1], i + 1);
            corner(out[2], i + 2);
        }
    });
}

// --- Lines ---

void RendererBase::line(const Vector& a, Colour colourA, const Vector& b, Colour colourB) {
    QuadVertex* out = allot(Primitive::lines, 2);
    if (out == nullptr)
        return;
    put(out[0], a.x, a.y, a.z, 0, 0, colourA);
    put(out[1], b.x, b.y, b.z, 0, 0, colourB);
}

void RendererBase::chain(const std::vector<Vertex>& vertices) {
    for (std::size_t i = 1; i < vertices.size(); ++i) {
        const Vertex& a = vertices[i - 1];
        const Vertex& b = vertices[i];
        line(a, toColour({a.r, a.g, a.b, a.a}), b, toColour({b.r, b.g, b.b, b.a}));
    }
}

void RendererBase::drawLines(const std::vector<std::vector<Vertex>>& polygons) {
    recorder_.operation("drawLines", polygons.size());
    for (const std::vector<Vertex>& polygon : polygons)
        chain(polygon);
}

void RendererBase::drawLine(float x1, float y1, float x2, float y2, int r, int g, int b, int a) {
    recorder_.operation("drawLine", x1, y1, x2, y2, r, g, b, a);
    colour_ = toColour({static_cast<float>(r), static_cast<float>(g), static_cast<float>(b),
                        static_cast<float>(a)});
    blending_ = false;
    line(Vector(x1, y1), colour_, Vector(x2, y2), colour_);
}

void RendererBase::drawLine(float x1, float y1, float x2, float y2, float width) {
    recorder_.operation("drawLine", x1, y1, x2, y2, width);
    const float previous = state_.lineWidth;
    state_.lineWidth = std::max(width, 0.1F);
    line(Vector(x1, y1), colour_, Vector(x2, y2), colour_);
    state_.lineWidth = previous;
}

void RendererBase::drawColouredLines(const std::vector<Vertex>& vertices) {
    recorder_.operation("drawColouredLines", vertices.size());
    blending_ = false;
    chain(vertices);
}

// --- Beams ---

void RendererBase::beamCorners(float out[8], const Vector& a, const Vector& b, float width) {
    const float dx = b.x - a.x;
    const float dy = b.y - a.y;
    const float length = std::sqrt(dx * dx + dy * dy);
    const float k = length > 0 ? width / length : 0.0F;
    const float px = -dy * k;
    const float py = dx * k;
    out[0] = a.x - px;
    out[1] = a.y - py;
    out[2] = a.x + px;
    out[3] = a.y + py;
    out[4] = b.x + px;
    out[5] = b.y + py;
    out[6] = b.x - px;
    out[7] = b.y - py;
}

void RendererBase::beam(const Vector& a, const Vector& b, float z, float width, bool flip) {
    QuadVertex* out = allot(Primitive::quads, 4);
    if (out == nullptr)
        return;
    float corner[8];
    beamCorners(corner, a, b, width);
    const float s0 = flip ? 1.0F : 0.0F;
    const float s1 = 1.0F - s0;
    put(out[0], corner[0], corner[1], z, s0, 0, colour_);
    put(out[1], corner[2], corner[3], z, s1, 0, colour_);
    put(out[2], corner[4], corner[5], z, s1, 1, colour_);
    put(out[3], corner[6], corner[7], z, s0, 1, colour_);
}

void RendererBase::drawBeam(const Vector& a, const Vector& b, float z, float width, bool wrap,
                            bool flip) {
    recorder_.operation("drawBeam", a.x, a.y, b.x, b.y, z, width, wrap, flip);
    beam(a, b, z, width, flip);
}

void RendererBase::drawBeam(const Vector& a, const Vector& b, float z, float width, bool wrap) {
    drawBeam(a, b, z, width, wrap, false);
}

void RendererBase::drawSegmentedBeam(const Vector& a, const Vector& b, float z, float width,
                                     float pieceLength, bool wrap, bool flip) {
    recorder_.operation("drawSegmentedBeam", a.x, a.y, b.x, b.y, z, width, pieceLength, wrap, flip);
    state_.depthTest = true;
    const float length = planarDistance(a, b);
    if (!(length > 0))
        return;
    const float step = std::max(pieceLength > 0 ? pieceLength : length, length / maxBeamPieces);
    const Vector along((b.x - a.x) / length, (b.y - a.y) / length);
    Vector from = a;
    for (float at = 0; at < length; at += step) {
        const Vector to = at + step < length ? a + along * (at + step) : b;
        beam(from, to, z, width, flip);
        from = to;
    }
}

void RendererBase::drawSegmentedBeam(const Vector& a, const Vector& b, float z, float width,
                                     float pieceLength, bool wrap) {
    drawSegmentedBeam(a, b, z, width, pieceLength, wrap, false);
}

}  // namespace bc
