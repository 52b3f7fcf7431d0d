// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The books: frame, views, camera, overlay mode, state.
#include "render/RendererBase.h"

#include "command/GameVar.h"
#include "core/Log.h"
#include "core/Ticks.h"
#include "ports/FontRenderer.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace bc {

namespace {

/// Eye units a world unit.
constexpr double worldScale = 0.015;
// Vertical field of view in degrees: of a frame, and until the first frame after a mode change.
constexpr double frameFov = 90;
constexpr double modeFov = 45;
constexpr float frustumHalfAngle = 45;
constexpr float nearDistance = 0.1F;
constexpr float farDistance = 4096;

const std::string fontName = "vera";

std::uint8_t clampByte(int channel) {
    return static_cast<std::uint8_t>(channel < 0 ? 0 : channel > 255 ? 255 : channel);
}

}  // namespace

RendererBase::RendererBase(RenderDevice& device) : device_(device), textures_(device) {}
RendererBase::~RendererBase() = default;

void RendererBase::bindStartVariables() {
    settings_.vsync = vars().getVar("vsync");
    settings_.drawoutlines = vars().getVar("drawoutlines");
    settings_.cachetextureids = vars().getVar("cachetextureids");
}

void RendererBase::bindWindowVariables() {
    settings_.showfps = vars().getVar("showfps");
    settings_.rbodystring = vars().getVar("rbodystring");
    settings_.bloomblurpixels = vars().getVar("bloomblurpixels");
    settings_.vidwidth = vars().getVar("vidwidth");
    settings_.vidheight = vars().getVar("vidheight");
    settings_.drawbodies = vars().getVar("drawbodies");
    settings_.movierecord = vars().getVar("movierecord");
}

int RendererBase::settingOf(const GameVar* variable) {
    return variable != nullptr ? variable->intValue() : 0;
}

// --- Mode and frame ---

void RendererBase::modeChanged(int width, int height) {
    width_ = width;
    height_ = height;
    in2D_ = false;
    capturingBloom_ = false;
    modelview_.clear();
    projection_.clear();
    modelviewChanged();
    device_.reset();
    state_ = DrawState{};
    state_.depthTest = true;
    texturing_ = true;
    blending_ = false;
    viewport_ = {0, 0, width, height};
    device_.setViewport(0, 0, width, height);
    setWorldProjection(modeFov);
    logLine("REND New Res: " + std::to_string(width) + " , " + std::to_string(height));
    reloadTextures();
}

void RendererBase::restartFrameClock() {
    clock_.restart(ticksNow());
}

void RendererBase::setWorldProjection(double fovDegrees) {
    const double ratio = height_ > 0 ? static_cast<double>(width_) / height_ : 1.0;
    setProjection(Matrix4::perspective(fovDegrees, ratio, nearDistance, farDistance));
    frustum_.setInternals(frustumHalfAngle, static_cast<float>(ratio), nearDistance, farDistance);
}

void RendererBase::setProjection(const Matrix4& projection) {
    projection_.top() = projection;
    device_.setProjection(projection);
}

bool RendererBase::beginFrame() {
    recorder_.frameBegins();
    recorder_.operation("beginFrame");
    in2D_ = false;
    modelview_.clear();
    projection_.clear();
    setWorldProjection(frameFov);
    device_.clear();
    state_.depthTest = true;
    blending_ = true;
    blend_ = Blend::alpha;
    modelview_.top().scale(worldScale);
    modelviewChanged();
    clock_.frameBegins(ticksNow());
    return true;
}

bool RendererBase::endFrame() {
    clock_.frameEnds();
    present();
    recorder_.operation("endFrame");
    recorder_.frameEnds();
    return true;
}

void RendererBase::dumpNextFrame(std::unique_ptr<std::ostream> out) {
    recorder_.request(std::move(out));
}

void RendererBase::noteInDump(std::string_view line) {
    recorder_.operation(line);
}

void RendererBase::drawFPS() {
    if (settingOf(settings_.showfps) == 0)
        return;
    recorder_.operation("drawFPS");
    begin2D();
    setColour(255, 255, 255);
    setTexturing(true);
    if (fonts_) {
        std::array<char, 24> text{};
        char* end = std::to_chars(text.data(), text.data() + 12, clock_.framesPerSecond()).ptr;
        constexpr std::string_view unit = " FPS";
        end = std::copy(unit.begin(), unit.end(), end);
        fonts_->setFont(fontName, 14);
        const std::string_view line(text.data(), static_cast<std::size_t>(end - text.data()));
        fonts_->drawShadowText(static_cast<float>(width_ - 128), 35, line);
    }
    end2D();
}

// --- Overlay mode, matrices, camera ---

void RendererBase::begin2D() {
    recorder_.operation("begin2D");
    enter2D();
}

void RendererBase::end2D() {
    recorder_.operation("end2D");
    leave2D();
}

void RendererBase::enter2D() {
    if (in2D_)
        return;
    state_.depthTest = false;
    projection_.push();
    setProjection(Matrix4::ortho(0, width_ > 0 ? width_ : 1, 0, height_ > 0 ? height_ : 1, -1, 1));
    modelview_.push();
    modelview_.top() = Matrix4{};
    modelviewChanged();
    in2D_ = true;
}

void RendererBase::leave2D() {
    if (!in2D_)
        return;
    projection_.pop();
    device_.setProjection(projection_.top());
    modelview_.pop();
    modelviewChanged();
    state_.depthTest = true;
    in2D_ = false;
}

void RendererBase::pushMatrix() {
    recorder_.operation("pushMatrix");
    modelview_.push();
}

void RendererBase::popMatrix() {
    recorder_.operation("popMatrix");
    modelview_.pop();
    modelviewChanged();
}

void RendererBase::translate(float x, float y, float z) {
    recorder_.operation("translate", x, y, z);
    modelview_.top().translate(-x, -y, z);
    modelviewChanged();
}

void RendererBase::modelviewChanged() {
    const Matrix4& matrix = modelview_.top();
    for (int column = 0; column < 4; ++column)
        for (int row = 0; row < 3; ++row)
            eye_.m[column * 3 + row] = static_cast<float>(matrix.at(row, column));
}

void RendererBase::setCamera(float x, float y, float z) {
    recorder_.operation("setCamera", x, y, z);
    camera_.set(x, y, z);
    modelview_.top().translate(-x, -y, z);
    modelviewChanged();
    lookAt_.set(x, y, -z);
    frustum_.setView(camera_, lookAt_, up_);
}

void RendererBase::updateFrustumPlanes() {
    frustum_.setPlanes(projection_.top() * modelview_.top());
}

Vector RendererBase::screenToWorld(float sx, float sy) {
    Vector place = unproject(sx, sy, 0);
    place.z = 0;
    return place;
}

Vector RendererBase::unproject(double sx, double sy, double depth) {
    Vector result(0, 0, -512);
    const bool inside = viewport_.x <= sx && sx <= viewport_.width && viewport_.y <= sy &&
                        sy <= viewport_.height && viewport_.width > 0 && viewport_.height > 0;
    if (!inside)
        return result;
    const std::optional<Matrix4> back = (projection_.top() * modelview_.top()).inverse();
    if (!back)
        return result;
    const double x = (sx - viewport_.x) / viewport_.width * 2 - 1;
    const double y = (viewport_.height - sy - viewport_.y) / viewport_.height * 2 - 1;
    const std::array<double, 4> p = back->transform(x, y, depth * 2 - 1, 1);
    if (p[3] != 0)
        result.set(static_cast<float>(p[0] / p[3]), static_cast<float>(p[1] / p[3]),
                   static_cast<float>(p[2] / p[3]));
    return result;
}

Vector RendererBase::zeroVector() {
    return {};
}

// --- State ---

DrawState RendererBase::currentState() const {
    DrawState state = state_;
    state.texture = texturing_ ? textures_.boundId() : 0;
    state.blend = blending_ ? blend_ : Blend::none;
    return state;
}

void RendererBase::setBlending(bool on) {
    recorder_.operation("setBlending", on);
    blending_ = on;
}

void RendererBase::setAdditiveBlend() {
    recorder_.operation("setAdditiveBlend");
    blend_ = Blend::additive;
}

void RendererBase::setAlphaBlend() {
    recorder_.operation("setAlphaBlend");
    blend_ = Blend::alpha;
}

void RendererBase::useAlphaBlend() {
    blending_ = true;
    blend_ = Blend::alpha;
}

void RendererBase::setTexturing(bool on) {
    recorder_.operation("setTexturing", on);
    texturing_ = on;
}

void RendererBase::setDepthTest(bool on) {
    recorder_.operation("setDepthTest", on);
    state_.depthTest = on;
}

void RendererBase::setDepthWrite(bool on) {
    recorder_.operation("setDepthWrite", on);
    state_.depthWrite = on;
}

void RendererBase::setScissorTest(bool on) {
    recorder_.operation("setScissorTest", on);
    state_.scissorTest = on;
}

void RendererBase::setScissor(const ScissorRect& rect) {
    setScissor(static_cast<int>(rect.x), static_cast<int>(rect.y), static_cast<int>(rect.width),
               static_cast<int>(rect.height));
}

void RendererBase::setScissor(int x, int y, int w, int h) {
    recorder_.operation("setScissor", x, y, w, h);
    state_.scissor = {x, y, w > 0 ? w : 0, h > 0 ? h : 0};
}

RendererBase::Colour RendererBase::toColour(const RGBAColour& colour) {
    return {RGBAColour::toByte(colour.r), RGBAColour::toByte(colour.g),
            RGBAColour::toByte(colour.b), RGBAColour::toByte(colour.a)};
}

void RendererBase::setColour(int r, int g, int b) {
    setColour(r, g, b, 255);
}

void RendererBase::setColour(int r, int g, int b, int a) {
    recorder_.operation("setColour", r, g, b, a);
    colour_ = {clampByte(r), clampByte(g), clampByte(b), clampByte(a)};
}

void RendererBase::setColour(const RGBAColour& colour) {
    const Colour c = toColour(colour);
    setColour(c.r, c.g, c.b, c.a);
}

RGBAColour RendererBase::getColour() const {
    return {static_cast<float>(colour_.r), static_cast<float>(colour_.g),
            static_cast<float>(colour_.b), static_cast<float>(colour_.a)};
}

}  // namespace bc
