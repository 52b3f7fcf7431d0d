// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/IRenderer.h"
#include "render/FrameClock.h"
#include "render/FrameRecorder.h"
#include "render/Pictures.h"
#include "render/RenderDevice.h"
#include "view/Frustum.h"
#include "view/MatrixStack.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace bc {

class GameVar;

/// All of IRenderer but the window: the books (matrices, camera, view, overlay mode, colour,
/// texture cache, fonts, frame clock, pictures, frame dump) and every shape, handed to a
/// RenderDevice as corners in eye space. Settings are read from the console's variables each time
/// they are needed; one that was not looked up yet reads as 0.
class RendererBase : public IRenderer {
  public:
    bool beginFrame() override;
    bool endFrame() override;
    void begin2D() override;
    void end2D() override;

    void setBlending(bool on) override;
    void setAdditiveBlend() override;
    void setAlphaBlend() override;
    void setTexturing(bool on) override;
    void bindTexture(const std::string& name, bool clamp) override;
    void bindTexture(const std::string& name) override;
    void bindTextureId(int id) override;
    void bindTextureNoEnable(const std::string& name) override;
    int getTextureId(const std::string& name) override;
    void unloadTexture(const std::string& name) override;
    void reloadTextures() override;
    void setColour(int r, int g, int b) override;
    void setColour(int r, int g, int b, int a) override;
    void setColour(const RGBAColour& colour) override;
    [[nodiscard]] RGBAColour getColour() const override;

    void drawQuad(float x, float y, float z, float w, float h) override;
    void drawQuad(const Quad& quad) override;
    void drawTiledQuad(float x, float y, float z, float w, float h) override;
    void drawCentredQuad(float x, float y, float z, float halfW, float halfH, bool wrap) override;
    void drawImage(float x, float y, float z, float w, float h, const std::string& name,
                   bool additive, bool clamp) override;
    void drawImage(float x, float y, float z, float w, float h, const std::string& name) override;
    void drawSprite(const std::string& name, float x, float y, float z, float size) override;
    void drawPolygon(const Vector* points, int count) override;
    void drawPolygon(const Vector* points, const RGBAColour* colours, int count) override;
    void drawLines(const std::vector<std::vector<Vertex>>& polygons) override;
    void drawLine(float x1, float y1, float x2, float y2, int r, int g, int b, int a) override;
    void drawLine(float x1, float y1, float x2, float y2, float width) override;
    void drawColouredLines(const std::vector<Vertex>& vertices) override;
    void setScissorTest(bool on) override;
    void setScissor(const ScissorRect& rect) override;
    void setScissor(int x, int y, int w, int h) override;

    Vector screenToWorld(float sx, float sy) override;
    Vector unproject(double sx, double sy, double depth) override;
    Vector zeroVector() override;
    void drawFPS() override;
    void translate(float x, float y, float z) override;
    void setCamera(float x, float y, float z) override;
    const Vector& getCamera() override { return camera_; }

    void beamCorners(float out[8], const Vector& a, const Vector& b, float width) override;
    void drawBeam(const Vector& a, const Vector& b, float z, float width, bool wrap,
                  bool flip) override;
    void drawBeam(const Vector& a, const Vector& b, float z, float width, bool wrap) override;
    void drawSegmentedBeam(const Vector& a, const Vector& b, float z, float width,
                           float pieceLength, bool wrap, bool flip) override;
    void drawSegmentedBeam(const Vector& a, const Vector& b, float z, float width,
                           float pieceLength, bool wrap) override;

    void drawBody(Drawable& body) override;
    void drawBodyPlain(Drawable& body) override;

    [[nodiscard]] FontRenderer* getFontRenderer() override;
    void setFontRenderer(std::unique_ptr<FontRenderer> fonts) override;
    [[nodiscard]] bool isFullscreen() const override { return fullscreen_; }
    void setFullscreen(bool fullscreen) override { fullscreen_ = fullscreen; }
    [[nodiscard]] int getWidth() const override { return width_; }
    [[nodiscard]] int getHeight() const override { return height_; }
    void pushMatrix() override;
    void popMatrix() override;
    [[nodiscard]] const Frustum& getFrustum() const override { return frustum_; }

    void setBloomDirection(const Vector& direction) override;
    void beginBloomCapture() override;
    void endBloomCapture() override;
    void drawBloom() override;
    bool movieFrameDue(float timeMs) override;
    [[nodiscard]] bool isCapturingBloom() const override { return capturingBloom_; }

    void takeScreenshot() override;
    void grabThumbnail() override;
    bool saveThumbnail(const std::string& path, int width, int height) override;
    void dumpTextures(std::ostream& out) override;
    [[nodiscard]] const std::vector<Dimension>& getVideoModes() const override { return modes_; }

    void drawQuads(std::span<const QuadVertex> corners) override;
    void setDepthTest(bool on) override;
    void setDepthWrite(bool on) override;
    void dumpNextFrame(std::unique_ptr<std::ostream> out) override;
    [[nodiscard]] bool isDumpingFrame() const override { return recorder_.isActive(); }
    void noteInDump(std::string_view line) override;

    /// The window as drawn so far in this frame; nothing when it cannot be read.
    [[nodiscard]] std::optional<Image> readFrame();
    /// Takes the view's planes from the matrices in force instead of from the camera.
    void updateFrustumPlanes();
    /// A new black texture; its id comes back in id.
    void createBlankTexture(int& id, int w, int h);
    void createBloomTexture(int w, int h);
    /// The bloom texture over a window of that size, moved by the offset in pixels.
    void drawScreenQuad(int w, int h, float offsetX, float offsetY);

  protected:
    /// The device is not owned; it outlives the base's destructor.
    explicit RendererBase(RenderDevice& device);
    ~RendererBase() override;
    RendererBase(const RendererBase&) = delete;
    RendererBase& operator=(const RendererBase&) = delete;

    // The variables, looked up in the two steps of start-up that the derived classes make.
    void bindStartVariables();
    void bindWindowVariables();
    [[nodiscard]] static int settingOf(const GameVar* variable);
    struct Settings {
        GameVar* vsync = nullptr;
        GameVar* drawoutlines = nullptr;
        GameVar* cachetextureids = nullptr;
        GameVar* showfps = nullptr;
        GameVar* rbodystring = nullptr;
        GameVar* bloomblurpixels = nullptr;
        GameVar* vidwidth = nullptr;
        GameVar* vidheight = nullptr;
        GameVar* drawbodies = nullptr;
        GameVar* movierecord = nullptr;
    };
    [[nodiscard]] const Settings& settings() const { return settings_; }

    /// What follows once a window of that size stands: state, view and textures from new.
    void modeChanged(int width, int height);
    void restartFrameClock();
    /// What is to happen when a frame is complete, before the frame counts as ended.
    virtual void present() = 0;

    std::vector<Dimension> modes_;

  private:
    /// A colour as it is drawn.
    struct Colour {
        std::uint8_t r = 255, g = 255, b = 255, a = 255;
    };
    /// The modelview in the precision of corners: x, y and z from (x, y, z, 1).
    struct EyeTransform {
        float m[12];
    };
    [[nodiscard]] static Colour toColour(const RGBAColour& colour);

    // Corners.
    [[nodiscard]] DrawState currentState() const;
    /// tiles: some texture coordinate lies outside of 0 to 1. Sets the place that put maps to.
    [[nodiscard]] QuadVertex* allot(Primitive primitive, std::size_t corners, bool tiles = false);
    void put(QuadVertex& out, float x, float y, float z, float u, float v, Colour colour) const;
    void modelviewChanged();
    void setProjection(const Matrix4& projection);
    void setWorldProjection(double fovDegrees);

    // The shapes without the frame dump.
    void quad(float x, float y, float z, float w, float h);
    void beam(const Vector& a, const Vector& b, float z, float width, bool flip);
    void line(const Vector& a, Colour colourA, const Vector& b, Colour colourB);
    void chain(const std::vector<Vertex>& vertices);
    void useTexture(const std::string& name, bool clamp);
    void useAlphaBlend();
    void enter2D();
    void leave2D();

    // Bodies.
    void enterBody(const Drawable& body);
    void leaveBody();
    void bindBodyTexture(Drawable& body, bool mayUseId);
    void fillBody(Drawable& body);
    void outlineBody(const Drawable& body);
    void outlineBodyPlain(const Drawable& body);
    void glowBody(const Drawable& body);
    void labelBody(const Drawable& body, bool plain);
    void recordBody(std::string_view operation, const Drawable& body);

    RenderDevice& device_;
    TextureManager textures_;
    std::unique_ptr<FontRenderer> fonts_;
    Settings settings_;
    FrameClock clock_;
    FrameRecorder recorder_;
    Pictures pictures_;

    Vector camera_;
    Vector lookAt_;
    Vector up_{0, 1, 0};
    Frustum frustum_;
    MatrixStack modelview_;
    MatrixStack projection_;
    TexturePlace place_;
    EyeTransform eye_{{1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0}};
    bool fullscreen_ = false;
    bool in2D_ = false;
    int width_ = 0;
    int height_ = 0;
    ScissorBox viewport_;

    // What the next shape is drawn with.
    Colour colour_;
    bool texturing_ = false;
    bool blending_ = false;
    Blend blend_ = Blend::alpha;
    DrawState state_;
    std::string textureName_;

    int bloomTexture_ = 0;
    int bloomWidth_ = 0;
    int bloomHeight_ = 0;
    bool capturingBloom_ = false;
    Vector bloomDirection_;
    float movieFrameAt_ = 0;
    std::string label_;
};

}  // namespace bc
