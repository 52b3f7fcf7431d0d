// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Dimension.h"
#include "core/RGBAColour.h"
#include "core/Vector.h"

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace bc {

class Drawable;
class FontRenderer;
class Frustum;
class Quad;
struct Vertex;

/// One corner of a batched quad: position in the current view, texture coordinate, colour bytes.
struct QuadVertex {
    float x, y, z;
    float u, v;
    std::uint8_t r, g, b, a;
};

/// A rectangle in window pixels from the bottom left.
struct ScissorRect {
    float x = 0;
    float y = 0;
    float width = 0;
    float height = 0;
};

/// All drawing of the game. The world is drawn in perspective, scaled by 0.015, around the camera;
/// between begin2D and end2D coordinates are window pixels from the bottom left.
/// There is one implementation over OpenGL and one that draws nothing but keeps all books.
/// Texture names are paths of image files; a missing one is logged and the fallback drawn.
class IRenderer {
  public:
    virtual ~IRenderer() = default;

    // Window and frame.
    virtual bool setVideoMode(int width, int height, bool fullscreen) = 0;
    virtual bool init() = 0;
    virtual bool initWindow() = 0;
    virtual bool beginFrame() = 0;
    virtual bool endFrame() = 0;
    virtual void begin2D() = 0;
    virtual void end2D() = 0;

    // State.
    virtual void setBlending(bool on) = 0;
    virtual void setAdditiveBlend() = 0;
    virtual void setAlphaBlend() = 0;
    virtual void setTexturing(bool on) = 0;
    virtual void bindTexture(const std::string& name, bool clamp) = 0;
    virtual void bindTexture(const std::string& name) = 0;
    virtual void bindTextureId(int id) = 0;
    virtual void bindTextureNoEnable(const std::string& name) = 0;
    /// -1 when the texture is not cached.
    virtual int getTextureId(const std::string& name) = 0;
    virtual void unloadTexture(const std::string& name) = 0;
    virtual void reloadTextures() = 0;
    virtual void setColour(int r, int g, int b) = 0;
    virtual void setColour(int r, int g, int b, int a) = 0;
    virtual void setColour(const RGBAColour& colour) = 0;
    /// The colour of what has none of its own.
    [[nodiscard]] virtual RGBAColour getColour() const { return {255, 255, 255, 255}; }

    // Shapes. x, y name the top-left corner and shapes extend right and down unless said otherwise.
    virtual void drawQuad(float x, float y, float z, float w, float h) = 0;
    virtual void drawQuad(const Quad& quad) = 0;
    virtual void drawTiledQuad(float x, float y, float z, float w, float h) = 0;
    virtual void drawCentredQuad(float x, float y, float z, float halfW, float halfH,
                                 bool wrap) = 0;
    virtual void drawImage(float x, float y, float z, float w, float h, const std::string& name,
                           bool additive, bool clamp) = 0;
    virtual void drawImage(float x, float y, float z, float w, float h,
                           const std::string& name) = 0;
    virtual void drawSprite(const std::string& name, float x, float y, float z, float size) = 0;
    virtual void drawPolygon(const Vector* points, int count) = 0;
    virtual void drawPolygon(const Vector* points, const RGBAColour* colours, int count) = 0;
    /// One chain of segments through the corners of each polygon, open at the end.
    virtual void drawLines(const std::vector<std::vector<Vertex>>& polygons) = 0;
    virtual void drawLine(float x1, float y1, float x2, float y2, int r, int g, int b, int a) = 0;
    virtual void drawLine(float x1, float y1, float x2, float y2, float width) = 0;
    /// One chain of segments through all vertices.
    virtual void drawColouredLines(const std::vector<Vertex>& vertices) = 0;
    virtual void setScissorTest(bool on) = 0;
    virtual void setScissor(const ScissorRect& rect) = 0;
    virtual void setScissor(int x, int y, int w, int h) = 0;

    // Places. Screen positions are window pixels from the top left, depth 0 (near) to 1 (far).
    virtual Vector screenToWorld(float sx, float sy) = 0;
    virtual Vector unproject(double sx, double sy, double depth) = 0;
    virtual Vector zeroVector() = 0;
    virtual void drawFPS() = 0;
    /// Moves what follows by (-x, -y, z).
    virtual void translate(float x, float y, float z) = 0;
    virtual void setCamera(float x, float y, float z) = 0;
    virtual const Vector& getCamera() = 0;

    // Bands around a segment. wrap: a batch of its own; otherwise part of the caller's.
    virtual void beamCorners(float out[8], const Vector& a, const Vector& b, float width) = 0;
    virtual void drawBeam(const Vector& a, const Vector& b, float z, float width, bool wrap,
                          bool flip) = 0;
    virtual void drawBeam(const Vector& a, const Vector& b, float z, float width, bool wrap) = 0;
    virtual void drawSegmentedBeam(const Vector& a, const Vector& b, float z, float width,
                                   float pieceLength, bool wrap, bool flip) = 0;
    virtual void drawSegmentedBeam(const Vector& a, const Vector& b, float z, float width,
                                   float pieceLength, bool wrap) = 0;

    virtual void drawBody(Drawable& body) = 0;
    virtual void drawBodyPlain(Drawable& body) = 0;

    [[nodiscard]] virtual FontRenderer* getFontRenderer() = 0;
    /// The renderer owns it from now on.
    virtual void setFontRenderer(std::unique_ptr<FontRenderer> fonts) = 0;
    [[nodiscard]] virtual bool isFullscreen() const = 0;
    virtual void setFullscreen(bool fullscreen) = 0;
    /// Window size in pixels.
    [[nodiscard]] virtual int getWidth() const = 0;
    [[nodiscard]] virtual int getHeight() const = 0;
    virtual void pushMatrix() = 0;
    virtual void popMatrix() = 0;
    [[nodiscard]] virtual const Frustum& getFrustum() const = 0;

    // Bloom.
    virtual void setBloomDirection(const Vector& direction) = 0;
    virtual void beginBloomCapture() = 0;
    virtual void endBloomCapture() = 0;
    virtual void drawBloom() = 0;
    virtual bool movieFrameDue(float timeMs) = 0;
    [[nodiscard]] virtual bool isCapturingBloom() const = 0;

    // Pictures.
    virtual void takeScreenshot() = 0;
    virtual void grabThumbnail() = 0;
    virtual bool saveThumbnail(const std::string& path, int width, int height) = 0;
    virtual void dumpTextures(std::ostream& out) = 0;
    /// Fullscreen modes, smallest first.
    [[nodiscard]] virtual const std::vector<Dimension>& getVideoModes() const = 0;

    // For everything that draws many quads: one call a batch, four corners a quad, with the
    // current texture, blending and depth state. Nothing is kept of the span.
    virtual void drawQuads(std::span<const QuadVertex> corners) = 0;
    virtual void setDepthTest(bool on) = 0;
    virtual void setDepthWrite(bool on) = 0;

    /// The drawing operations from the next beginFrame to its endFrame are written to out, one a
    /// line; the stream is released afterwards.
    virtual void dumpNextFrame(std::unique_ptr<std::ostream> out) = 0;
    /// True while a frame is being dumped.
    [[nodiscard]] virtual bool isDumpingFrame() const { return false; }
    /// A line of the dump from whoever turns one operation into many (texts).
    virtual void noteInDump(std::string_view /*line*/) {}
};

}  // namespace bc
