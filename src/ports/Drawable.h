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

/// How the texture of a body is shifted and scaled when it is drawn. Offsets are in texture units
/// (1 is the size of the image), scales are factors on the texture coordinates.
struct TextureTransform {
    float offsetX = 0;
    float offsetY = 0;
    float offsetZ = 0;
    float unused = 0;
    float scaleX = 1;
    float scaleY = 1;
};

/// The part of a body that the renderer works with: its polygon, its place and its looks. Bodies
/// derive from it; IRenderer::drawBody draws it.
class Drawable {
  public:
    virtual ~Drawable() = default;

    /// The renderer calls it after it has drawn the polygon, with the matrix of the world in force
    /// and not that of the body.
    virtual void drawExtras(IRenderer&) {}
    /// True when the renderer must call textureTransform before it draws the polygon.
    [[nodiscard]] virtual bool hasTextureTransform() const { return false; }
    /// Changes the members that differ from the defaults.
    virtual void textureTransform(TextureTransform&) {}
    /// True when the renderer must call drawSelf and not draw the polygon.
    [[nodiscard]] virtual bool drawsItself() const { return false; }
    virtual void drawSelf(IRenderer&) {}

    // The corners in world units relative to renderpos, with one colour and one texture coordinate
    // for each. A corner without a colour is white; one without a coordinate has 0,0.
    std::vector<Vector> localVertices;
    std::vector<RGBAColour> colours;
    std::vector<TexCoord> texCoords;

    std::string texture;
    std::string glowTexture;

    // The body type and the name that the level gives the body, for labels and dumps.
    std::string type = "default";
    std::string id = "generic";

    RGBAColour outlinecolour;
    int outlinewidth = 1;

    // The texture mapping of the level file. It is only stored and written back: the texture
    // coordinates of the corners already contain it.
    float texhshift = 0;
    float texvshift = 0;
    float texhscale = 1;
    float texvscale = 1;
    float texrotate = 0;

    /// The renderer's id of the texture; -1 before the renderer has looked it up by name.
    int textureHandle = -1;
    /// How often the glow texture is drawn over the body, each time fainter.
    int glowSteps = 0;

    /// Where the body is drawn, in world units: between its positions before and after the last
    /// simulation step.
    Vector renderpos;
    /// The depth. Bodies with a lower one are farther away and are drawn earlier.
    float zShift = 0;

    bool visible = true;
    bool outlined = true;
    bool textured = false;
    /// True for sprites, whose texture must not repeat at its edges; false for tiling textures.
    bool clampTexture = false;
    /// True when the body is also drawn in the bloom pass.
    bool hasGlow = false;

    // These two stand last and start a cache line. The members of Body that every simulation step
    // reads follow in the same line.
    alignas(64) float mass = 100;
    /// Radians, clockwise as the player sees it (world.x = x cos + y sin).
    float angle = 0;
};

}  // namespace bc
