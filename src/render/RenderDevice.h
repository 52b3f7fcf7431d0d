// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/IRenderer.h"
#include "render/Image.h"
#include "render/TextureManager.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace bc {

struct Matrix4;

enum class Primitive : std::uint8_t { quads, triangles, lines };

/// How what is drawn mixes with what is there. shade darkens it by the alpha of what is drawn.
enum class Blend : std::uint8_t { none, alpha, additive, shade };

struct ScissorBox {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    friend bool operator==(const ScissorBox&, const ScissorBox&) = default;
};

/// Everything besides corners that a batch has in common.
struct DrawState {
    /// 0: untextured.
    int texture = 0;
    Blend blend = Blend::none;
    bool depthTest = false;
    bool depthWrite = true;
    bool scissorTest = false;
    /// Stays at its last value while the test is off.
    ScissorBox scissor;
    /// In pixels; 1 for everything but lines.
    float lineWidth = 1;
    friend bool operator==(const DrawState&, const DrawState&) = default;
};

/// Where an image lies on the texture that it is drawn from: a coordinate of the image, times
/// the scale, plus the offset.
struct TexturePlace {
    int texture = 0;
    float scaleU = 1;
    float scaleV = 1;
    float offsetU = 0;
    float offsetV = 0;
};

/// What really draws: corners come in eye space, in the order of drawing. Consecutive shapes of
/// one kind and one state are drawn together.
class RenderDevice : public TextureStore {
  public:
    /// Most corners that one call of allot grants; a multiple of 12.
    static constexpr std::size_t maxCorners = 12288;

    /// Room for that many corners, to be filled in before the next call; null when nothing is
    /// drawn at all. Quads take four, triangles three, lines two each.
    [[nodiscard]] virtual QuadVertex* allot(Primitive primitive, const DrawState& state,
                                            std::size_t corners) = 0;
    /// Where to draw a texture from. tiles: some coordinate lies outside of 0 to 1.
    [[nodiscard]] virtual TexturePlace placeOf(int texture, bool tiles) const = 0;
    /// After a change of mode: all state from the ground up.
    virtual void reset() = 0;
    virtual void setProjection(const Matrix4& projection) = 0;
    virtual void setViewport(int x, int y, int width, int height) = 0;
    /// Colour (black) and depth, regardless of scissor and depth writes.
    virtual void clear() = 0;
    /// A black texture without smaller copies of itself.
    virtual void makeBlankTexture(int id, int width, int height) = 0;
    /// The lower left part of the frame becomes the texture's image.
    virtual void copyFrameToTexture(int id, int width, int height) = 0;
    /// What was drawn so far, 24 bits; nothing when it cannot be read.
    [[nodiscard]] virtual std::optional<Image> readFrame(int width, int height) = 0;
};

}  // namespace bc
