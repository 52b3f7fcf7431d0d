// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Quad.h"
#include "ports/FontRenderer.h"
#include "ports/IRenderer.h"
// Tests of the floors below the renderer's have no frustum and never ask for one.
#if __has_include("view/Frustum.h")
#include "view/Frustum.h"
#else
namespace bc {
class Frustum {};
}  // namespace bc
#endif

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace bc::test {

/// A drawing operation with the state it was drawn in.
struct DrawCall {
    /// Name of the operation of IRenderer or FontRenderer.
    std::string name;
    /// Image or texture in force, or the text drawn.
    std::string text;
    /// Its numbers in their order (positions, sizes).
    std::vector<float> numbers;
    /// Corners of drawQuads.
    std::vector<QuadVertex> corners;
    RGBAColour colour;
    /// What the view was moved by when it was drawn.
    Vector offset;
    bool blending = false;
    bool additive = false;
    bool texturing = false;
    bool clamp = false;
    bool depthWrite = true;
    bool overlay = false;
};

/// Draws nothing and remembers what it was told. State operations are kept as state and stand in
/// each DrawCall; only what draws is a call of its own.
class RecordingRenderer final : public IRenderer {
  public:
    class Fonts;

    explicit RecordingRenderer(int width = 640, int height = 480);

    std::vector<DrawCall> calls;
    /// False: calls stay as they are, and drawing asks for no memory.
    bool recording = true;
    /// Deepest nesting of pushMatrix still open; 0 between frames of balanced code.
    int matrixDepth() const { return static_cast<int>(offsets_.size()) - 1; }
    /// The view that code under test sees; without one set in it everything is inside.
    Frustum frustum;
    /// The state right now, as the next call would be drawn in it.
    DrawCall state;

    std::vector<DrawCall> named(const std::string& name) const {
        std::vector<DrawCall> found;
        std::copy_if(calls.begin(), calls.end(), std::back_inserter(found),
                     [&](const DrawCall& c) { return c.name == name; });
        return found;
    }
    /// Calls that draw that image, texture or text.
    std::vector<DrawCall> drawn(const std::string& text) const {
        std::vector<DrawCall> found;
        std::copy_if(calls.begin(), calls.end(), std::back_inserter(found),
                     [&](const DrawCall& c) { return c.text == text; });
        return found;
    }

    void record(std::string_view name, std::string_view text,
                std::initializer_list<float> numbers) {
        if (!recording)
            return;
        DrawCall call = state;
        call.name = name;
        call.text = text;
        call.numbers = numbers;
        calls.push_back(std::move(call));
    }

    bool setVideoMode(int width, int height, bool fullscreen) override {
        width_ = width;
        height_ = height;
        fullscreen_ = fullscreen;
        return true;
    }
    bool init() override { return true; }
    bool initWindow() override { return true; }
    bool beginFrame() override {
        offsets_.assign(1, Vector());
        state = {};
        state.blending = true;
        return true;
    }
    bool endFrame() override { return true; }
    void begin2D() override { state.overlay = true; }
    void end2D() override { state.overlay = false; }

    void setBlending(bool on) override { state.blending = on; }
    void setAdditiveBlend() override { state.additive = true; }
    void setAlphaBlend() override { state.additive = false; }
    void setTexturing(bool on) override { state.texturing = on; }
    void bindTexture(const std::string& name, bool clamp) override {
        state.texturing = true;
        state.text = name;
        state.clamp = clamp;
        if (getTextureId(name) < 0)
            textures_.push_back(name);
    }
    void bindTexture(const std::string& name) override { bindTexture(name, false); }
    void bindTextureId(int id) override { state.text = textures_.at(static_cast<std::size_t>(id)); }
    void bindTextureNoEnable(const std::string& name) override { state.text = name; }
    /// Every texture ever bound is cached.
    int getTextureId(const std::string& name) override {
        const auto at = std::find(textures_.begin(), textures_.end(), name);
        return at == textures_.end() ? -1 : static_cast<int>(at - textures_.begin());
    }
    void unloadTexture(const std::string&) override {}
    void reloadTextures() override { textures_.clear(); }
    void setColour(int r, int g, int b) override { setColour(r, g, b, 255); }
    void setColour(int r, int g, int b, int a) override {
        state.colour.set(static_cast<float>(r), static_cast<float>(g), static_cast<float>(b),
                         static_cast<float>(a));
    }
    void setColour(const RGBAColour& colour) override { state.colour = colour; }
    RGBAColour getColour() const override { return state.colour; }

    void drawQuad(float x, float y, float z, float w, float h) override {
        record("drawQuad", state.text, {x, y, z, w, h});
    }
    void drawQuad(const Quad&) override { record("drawQuad", state.text, {}); }
    void drawTiledQuad(float x, float y, float z, float w, float h) override {
        record("drawTiledQuad", state.text, {x, y, z, w, h});
    }
    void drawCentredQuad(float x, float y, float z, float halfW, float halfH, bool) override {
        record("drawCentredQuad", state.text, {x, y, z, halfW, halfH});
    }
    void drawImage(float x, float y, float z, float w, float h, const std::string& name,
                   bool additive, bool clamp) override {
        state.blending = true;
        state.additive = additive;
        bindTexture(name, clamp);
        record("drawImage", name, {x, y, z, w, h});
    }
    void drawImage(float x, float y, float z, float w, float h, const std::string& name) override {
        drawImage(x, y, z, w, h, name, false, false);
    }
    void drawSprite(const std::string& name, float x, float y, float z, float size) override {
        record("drawSprite", name, {x, y, z, size});
    }
    void drawPolygon(const Vector*, int count) override {
        record("drawPolygon", state.text, {static_cast<float>(count)});
    }
    void drawPolygon(const Vector*, const RGBAColour*, int count) override {
        record("drawPolygon", state.text, {static_cast<float>(count)});
    }
    void drawLines(const std::vector<std::vector<Vertex>>& polygons) override {
        record("drawLines", {}, {static_cast<float>(polygons.size())});
    }
    void drawLine(float x1, float y1, float x2, float y2, int r, int g, int b, int a) override {
        setColour(r, g, b, a);
        record("drawLine", {}, {x1, y1, x2, y2});
    }
    void drawLine(float x1, float y1, float x2, float y2, float width) override {
        record("drawLine", {}, {x1, y1, x2, y2, width});
    }
    void drawColouredLines(const std::vector<Vertex>& vertices) override {
        record("drawColouredLines", {}, {static_cast<float>(vertices.size())});
    }
    void setScissorTest(bool) override {}
    void setScissor(const ScissorRect&) override {}
    void setScissor(int, int, int, int) override {}

    Vector screenToWorld(float sx, float sy) override { return {sx, sy}; }
    Vector unproject(double sx, double sy, double depth) override {
        return {static_cast<float>(sx), static_cast<float>(sy), static_cast<float>(depth)};
    }
    Vector zeroVector() override { return {}; }
    void drawFPS() override {}
    void translate(float x, float y, float z) override {
        offsets_.back() += Vector(-x, -y, z);
        state.offset = offsets_.back();
    }
    void setCamera(float x, float y, float z) override {
        camera_.set(x, y, z);
        translate(x, y, z);
    }
    const Vector& getCamera() override { return camera_; }

    void beamCorners(float out[8], const Vector&, const Vector&, float) override {
        std::fill(out, out + 8, 0.0F);
    }
    void drawBeam(const Vector& a, const Vector& b, float z, float width, bool, bool) override {
        record("drawBeam", state.text, {a.x, a.y, b.x, b.y, z, width});
    }
    void drawBeam(const Vector& a, const Vector& b, float z, float width, bool wrap) override {
        drawBeam(a, b, z, width, wrap, false);
    }
    void drawSegmentedBeam(const Vector& a, const Vector& b, float z, float width,
                           float pieceLength, bool, bool) override {
        record("drawSegmentedBeam", state.text, {a.x, a.y, b.x, b.y, z, width, pieceLength});
    }
    void drawSegmentedBeam(const Vector& a, const Vector& b, float z, float width,
                           float pieceLength, bool wrap) override {
        drawSegmentedBeam(a, b, z, width, pieceLength, wrap, false);
    }
    void drawBody(Drawable&) override { record("drawBody", {}, {}); }
    void drawBodyPlain(Drawable&) override { record("drawBodyPlain", {}, {}); }

    FontRenderer* getFontRenderer() override { return fonts_.get(); }
    void setFontRenderer(std::unique_ptr<FontRenderer> fonts) override {
        fonts_ = std::move(fonts);
    }
    bool isFullscreen() const override { return fullscreen_; }
    void setFullscreen(bool fullscreen) override { fullscreen_ = fullscreen; }
    int getWidth() const override { return width_; }
    int getHeight() const override { return height_; }
    void pushMatrix() override { offsets_.push_back(offsets_.back()); }
    void popMatrix() override {
        offsets_.pop_back();
        state.offset = offsets_.back();
    }
    const Frustum& getFrustum() const override { return frustum; }

    void setBloomDirection(const Vector&) override {}
    void beginBloomCapture() override {}
    void endBloomCapture() override {}
    void drawBloom() override { record("drawBloom", {}, {}); }
    bool movieFrameDue(float) override { return false; }
    bool isCapturingBloom() const override { return false; }
    void takeScreenshot() override {}
    void grabThumbnail() override { record("grabThumbnail", {}, {}); }
    bool saveThumbnail(const std::string&, int, int) override { return false; }
    void dumpTextures(std::ostream&) override {}
    const std::vector<Dimension>& getVideoModes() const override { return modes_; }
    void drawQuads(std::span<const QuadVertex> corners) override {
        record("drawQuads", state.texturing ? std::string_view(state.text) : "", {});
        if (recording)
            calls.back().corners.assign(corners.begin(), corners.end());
    }
    void setDepthTest(bool) override {}
    void setDepthWrite(bool on) override { state.depthWrite = on; }
    void dumpNextFrame(std::unique_ptr<std::ostream>) override {}

  private:
    int width_;
    int height_;
    bool fullscreen_ = false;
    Vector camera_;
    std::vector<Vector> offsets_{Vector()};
    std::unique_ptr<FontRenderer> fonts_;
    std::vector<Dimension> modes_;
    std::vector<std::string> textures_;
};

/// Letters of every font are half as wide as the font is high. Texts are recorded as calls of the
/// renderer, named drawText or drawShadowText, with x, y, z and the font's size as numbers.
class RecordingRenderer::Fonts final : public FontRenderer {
  public:
    explicit Fonts(RecordingRenderer& renderer) : renderer_(renderer) {}
    bool init() override { return true; }
    void unloadFonts() override {}
    void setRenderer(IRenderer*) override {}
    void setFont(std::string_view, int size) override { size_ = static_cast<float>(size); }
    void drawText(float x, float y, std::string_view text) override { drawText(x, y, 0, text); }
    void drawText(float x, float y, float z, std::string_view text) override {
        renderer_.record("drawText", text, {x, y, z, size_});
    }
    void drawShadowText(float x, float y, std::string_view text) override {
        drawShadowText(x, y, 0, text);
    }
    void drawShadowText(float x, float y, float z, std::string_view text) override {
        renderer_.record("drawShadowText", text, {x, y, z, size_});
    }
    float textWidth(std::string_view text) const override {
        return static_cast<float>(text.size()) * size_ / 2;
    }
    float textHeight(std::string_view) const override { return size_; }
    float centreX(float x, float w, std::string_view text) const override {
        return x + w * 0.5F - textWidth(text) * 0.5F;
    }
    float centreY(float y, float h, std::string_view text) const override {
        return y - h * 0.5F - textHeight(text) * 0.5F;
    }
    void setSnap(bool) override {}
    void setScale(float scale) override { scale_ = scale; }
    float getScale() const override { return scale_; }

  private:
    RecordingRenderer& renderer_;
    float size_ = 12;
    float scale_ = 1;
};

inline RecordingRenderer::RecordingRenderer(int width, int height)
    : width_(width), height_(height), fonts_(std::make_unique<Fonts>(*this)) {}

}  // namespace bc::test
