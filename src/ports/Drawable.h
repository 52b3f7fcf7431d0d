// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RGBAColour.h"
#include "core/TexCoord.h"
#include "core/Vector.h"

#include <string>
#include <vector>

namespace bc {

class IRenderer;

/// How a body with a moving texture shifts and scales it; all in texture units (1 = one image).
struct TextureTransform {
    float offsetX = 0;
    float offsetY = 0;
    float offsetZ = 0;
    float unused = 0;
    float scaleX = 1;
    float scaleY = 1;
};

/// What the renderer needs to know of a body: its polygon, where it is drawn and how it looks.
/// Bodies derive from it; the renderer draws it through IRenderer::drawBody.
class Drawable {
  public:
    virtual ~Drawable() = default;

    /// Called after the polygon was drawn, outside its matrix.
    virtual void drawExtras(IRenderer&) {}
    [[nodiscard]] virtual bool hasTextureTransform() const { return false; }
    /// Fills in what it wants to change; the rest stays as the caller gave it.
    virtual void textureTransform(TextureTransform&) {}
    /// True for bodies that drawSelf instead of having their polygon drawn.
    [[nodiscard]] virtual bool drawsItself() const { return false; }
    virtual void drawSelf(IRenderer&) {}

    // Corners relative to renderpos, one colour and one texture coordinate each (a shorter list
    // of colours or coordinates leaves the remaining corners white and at 0,0).
    std::vector<Vector> localVertices;
    std::vector<RGBAColour> colours;
    std::vector<TexCoord> texCoords;

    std::string texture;
    std::string glowTexture;

    // For labels and dumps.
    std::string type = "default";
    std::string id = "generic";

    RGBAColour outlinecolour;
    int outlinewidth = 1;

    // Texture mapping numbers of the level file; stored and written back, drawn with as they
    // stand in the corners' texture coordinates.
    float texhshift = 0;
    float texvshift = 0;
    float texhscale = 1;
    float texvscale = 1;
    float texrotate = 0;

    /// The renderer's id of texture, -1 when it is still to be fetched by name.
    int textureHandle = -1;
    /// With a glow texture: how many additive passes of it lie over the body, each fainter.
    int glowSteps = 0;

    /// World units. Between two simulation steps it lies between the old and the new position.
    Vector renderpos;
    /// Depth: lower is drawn first, and farther away.
    float zShift = 0;

    bool visible = true;
    bool outlined = true;
    bool textured = false;
    /// True: the texture's edge pixels do not wrap round (sprites); false: it tiles.
    bool clampTexture = false;
    /// Drawn in the bloom pass as well.
    bool hasGlow = false;

    // These two stand last, and begin a cache line that Body goes on with: what every simulation
    // step reads lies together.
    alignas(64) float mass = 100;
    /// Radians, clockwise as seen by the player (world.x = x cos + y sin).
    float angle = 0;
};

}  // namespace bc
