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

/// One corner of a quad for drawQuads: its position, texture coordinate and colour.
struct QuadVertex {
    float x, y, z;
    float u, v;
    std::uint8_t r, g, b, a;
};

/// A rectangle in window pixels; x and y are its lower left corner, counted from the bottom left of
/// the window.
struct ScissorRect {
    float x = 0;
    float y = 0;
    float width = 0;
    float height = 0;
};

/// All drawing of the game. The world is drawn in perspective, with coordinates in world units;
/// between begin2D and end2D coordinates are window pixels from the bottom left (the overlay).
/// One implementation uses OpenGL; another one draws nothing but keeps matrices, textures and fonts
/// like the first. A texture name is the path of an image file. When the file cannot be loaded, the
/// log says so and a fallback image is drawn instead.
class IRenderer {
  public:
    virtual ~IRenderer() = default;

    // Window and frame.
    /// Opens the window in this size in pixels, or in 640 x 480 when that fails. False when there
    /// is no window at all.
    virtual bool setVideoMode(int width, int height, bool fullscreen) = 0;
    /// Starts the video system and opens the window. False when that fails.
    virtual bool init() = 0;
    /// Sets up what a new window needs: its title, keyboard, mouse and the list of video modes.
    virtual bool initWindow() = 0;
    /// Clears the window and resets the matrices. endFrame shows what was drawn since.
    virtual bool beginFrame() = 0;
    virtual bool endFrame() = 0;
    virtual void begin2D() = 0;
    virtual void end2D() = 0;

    // State. Blending adds the colour that is drawn to the one below it (additive) or mixes the two
    // by the alpha that is drawn.
    virtual void setBlending(bool on) = 0;
    virtual void setAdditiveBlend() = 0;
    virtual void setAlphaBlend() = 0;
    virtual void setTexturing(bool on) = 0;
    /// Makes a texture the current one, loading it when it is not in memory, and turns texturing
    /// on. With clamp a texture that is loaded now does not repeat at its edges.
    virtual void bindTexture(const std::string& name, bool clamp) = 0;
    virtual void bindTexture(const std::string& name) = 0;
    /// These two leave texturing on or off as it is.
    virtual void bindTextureId(int id) = 0;
    virtual void bindTextureNoEnable(const std::string& name) = 0;
    /// The id of a texture that is in memory, else -1.
    virtual int getTextureId(const std::string& name) = 0;
    virtual void unloadTexture(const std::string& name) = 0;
    /// Unloads all textures; each is loaded again when it is bound next. Ids become invalid.
    virtual void reloadTextures() = 0;
    /// The colour for drawing, channels 0 to 255; alpha is 255 when it is not given.
    virtual void setColour(int r, int g, int b) = 0;
    virtual void setColour(int r, int g, int b, int a) = 0;
    virtual void setColour(const RGBAColour& colour) = 0;
    /// The colour that setColour set last.
    [[nodiscard]] virtual RGBAColour getColour() const { return {255, 255, 255, 255}; }

    // Shapes. x, y is the top left corner; w and h extend to the right and down. They are drawn in
    // the current colour, texture and blending unless a comment says otherwise. wrap is true for a
    // single shape and false within a series of them; it makes no difference to the picture.
    virtual void drawQuad(float x, float y, float z, float w, float h) = 0;
    /// In the colours of its corners. A quad without four corners is not drawn.
    virtual void drawQuad(const Quad& quad) = 0;
    /// The texture repeats; each of its pixels covers one unit.
    virtual void drawTiledQuad(float x, float y, float z, float w, float h) = 0;
    /// x, y is the centre.
    virtual void drawCentredQuad(float x, float y, float z, float halfW, float halfH,
                                 bool wrap) = 0;
    /// A quad with this texture, blended additively or by alpha.
    virtual void drawImage(float x, float y, float z, float w, float h, const std::string& name,
                           bool additive, bool clamp) = 0;
    virtual void drawImage(float x, float y, float z, float w, float h,
                           const std::string& name) = 0;
    /// A square with the centre x, y and this texture, in white and blended by alpha.
    virtual void drawSprite(const std::string& name, float x, float y, float z, float size) = 0;
    /// A filled convex polygon with count corners.
    virtual void drawPolygon(const Vector* points, int count) = 0;
    virtual void drawPolygon(const Vector* points, const RGBAColour* colours, int count) = 0;
    /// Lines from corner to corner of each polygon, but not from the last to the first.
    virtual void drawLines(const std::vector<std::vector<Vertex>>& polygons) = 0;
    virtual void drawLine(float x1, float y1, float x2, float y2, int r, int g, int b, int a) = 0;
    /// width is in pixels.
    virtual void drawLine(float x1, float y1, float x2, float y2, float width) = 0;
    /// Lines from vertex to vertex in the colours of the vertices.
    virtual void drawColouredLines(const std::vector<Vertex>& vertices) = 0;
    /// While the scissor test is on, only what lies inside the scissor rectangle is drawn.
    virtual void setScissorTest(bool on) = 0;
    virtual void setScissor(const ScissorRect& rect) = 0;
    virtual void setScissor(int x, int y, int w, int h) = 0;

    // Places. Screen positions are window pixels from the top left, depth is 0 (near) to 1 (far).
    /// unproject at depth 0, with z set to 0.
    virtual Vector screenToWorld(float sx, float sy) = 0;
    /// The place in the current view that is drawn at this screen position and depth; (0, 0, -512)
    /// for a position outside the viewport.
    virtual Vector unproject(double sx, double sy, double depth) = 0;
    virtual Vector zeroVector() = 0;
    /// Draws the frame rate, if the variable showfps is not 0.
    virtual void drawFPS() = 0;
    /// Moves everything that is drawn from now on by (-x, -y, z).
    virtual void translate(float x, float y, float z) = 0;
    /// Places the eye at x, y, z. It looks along growing z.
    virtual void setCamera(float x, float y, float z) = 0;
    virtual const Vector& getCamera() = 0;

    // Bands along the segment from a to b that reach width to either side of it.
    /// Writes x and y of the four corners of the band.
    virtual void beamCorners(float out[8], const Vector& a, const Vector& b, float width) = 0;
    /// The whole image along the band; flip mirrors it sideways.
    virtual void drawBeam(const Vector& a, const Vector& b, float z, float width, bool wrap,
                          bool flip) = 0;
    virtual void drawBeam(const Vector& a, const Vector& b, float z, float width, bool wrap) = 0;
    /// The image once for every pieceLength units of the band.
    virtual void drawSegmentedBeam(const Vector& a, const Vector& b, float z, float width,
                                   float pieceLength, bool wrap, bool flip) = 0;
    virtual void drawSegmentedBeam(const Vector& a, const Vector& b, float z, float width,
                                   float pieceLength, bool wrap) = 0;

    virtual void drawBody(Drawable& body) = 0;
    /// Draws the body without its glow.
    virtual void drawBodyPlain(Drawable& body) = 0;

    /// Null before setFontRenderer.
    [[nodiscard]] virtual FontRenderer* getFontRenderer() = 0;
    /// The renderer takes over ownership.
    virtual void setFontRenderer(std::unique_ptr<FontRenderer> fonts) = 0;
    [[nodiscard]] virtual bool isFullscreen() const = 0;
    virtual void setFullscreen(bool fullscreen) = 0;
    /// The size of the window in pixels.
    [[nodiscard]] virtual int getWidth() const = 0;
    [[nodiscard]] virtual int getHeight() const = 0;
    virtual void pushMatrix() = 0;
    virtual void popMatrix() = 0;
    /// What the camera sees.
    [[nodiscard]] virtual const Frustum& getFrustum() const = 0;

    // Bloom: what is drawn between beginBloomCapture and endBloomCapture goes to a small texture,
    // which drawBloom lays blurred over the window.
    virtual void setBloomDirection(const Vector& direction) = 0;
    virtual void beginBloomCapture() = 0;
    virtual void endBloomCapture() = 0;
    virtual void drawBloom() = 0;
    /// True when it is time for the next picture of a movie; timeMs is the current time.
    virtual bool movieFrameDue(float timeMs) = 0;
    [[nodiscard]] virtual bool isCapturingBloom() const = 0;

    // Pictures.
    /// Writes a picture of the window to the folder screenshots.
    virtual void takeScreenshot() = 0;
    /// Keeps a picture of the window in memory. saveThumbnail writes it, scaled to this size in
    /// pixels, to a file of the user folder and forgets it; false when there is none or the file
    /// cannot be written.
    virtual void grabThumbnail() = 0;
    virtual bool saveThumbnail(const std::string& path, int width, int height) = 0;
    /// Writes a list of the textures in memory.
    virtual void dumpTextures(std::ostream& out) = 0;
    /// The fullscreen sizes in pixels, smallest first.
    [[nodiscard]] virtual const std::vector<Dimension>& getVideoModes() const = 0;

    /// Draws many quads in one call, with the current texture, blending and depth state. Every four
    /// corners are a quad. The span is not used after the call.
    virtual void drawQuads(std::span<const QuadVertex> corners) = 0;
    virtual void setDepthTest(bool on) = 0;
    virtual void setDepthWrite(bool on) = 0;

    /// Writes the drawing operations from the next beginFrame to its endFrame to out, one a line,
    /// and then deletes the stream.
    virtual void dumpNextFrame(std::unique_ptr<std::ostream> out) = 0;
    /// True while a frame is being dumped.
    [[nodiscard]] virtual bool isDumpingFrame() const { return false; }
    /// Adds a line to the dump. A font renderer calls it, since it draws one text by many
    /// operations.
    virtual void noteInDump(std::string_view /*line*/) {}
};

}  // namespace bc
