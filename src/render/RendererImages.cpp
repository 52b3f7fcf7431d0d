// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Textures, bloom, fonts and pictures of the window.
#include "ports/FontRenderer.h"
#include "render/RendererBase.h"

#include <ostream>

namespace bc {

namespace {

constexpr int bloomSize = 256;
/// Pixels by which the bloom copies are moved where no setting tells.
constexpr float defaultBlur = 4;
/// Milliseconds.
constexpr float movieFrameInterval = 125;

}  // namespace

// --- Textures ---

void RendererBase::useTexture(const std::string& name, bool clamp) {
    texturing_ = true;
    textures_.bind(name, clamp);
    textureName_ = name;
}

void RendererBase::bindTexture(const std::string& name, bool clamp) {
    recorder_.operation("bindTexture", name, clamp);
    useTexture(name, clamp);
}

void RendererBase::bindTexture(const std::string& name) {
    bindTexture(name, false);
}

void RendererBase::bindTextureId(int id) {
    if (recorder_.isActive()) {
        const Texture* texture = textures_.byId(id);
        recorder_.operation("bindTextureId",
                            texture != nullptr ? std::string_view(texture->name) : "none");
    }
    textures_.bindId(id);
}

void RendererBase::bindTextureNoEnable(const std::string& name) {
    recorder_.operation("bindTextureNoEnable", name);
    textures_.bind(name, false);
    textureName_ = name;
}

int RendererBase::getTextureId(const std::string& name) {
    return textures_.getId(name);
}

void RendererBase::unloadTexture(const std::string& name) {
    textures_.unload(name);
}

void RendererBase::reloadTextures() {
    createBloomTexture(bloomSize, bloomSize);
    textures_.unloadAll();
}

void RendererBase::dumpTextures(std::ostream& out) {
    textures_.dump(out);
    out << "Blur Texture ID: " << bloomTexture_ << '\n';
}

void RendererBase::createBlankTexture(int& id, int w, int h) {
    id = textures_.reserveId();
    device_.makeBlankTexture(id, w, h);
}

// --- Bloom ---

void RendererBase::createBloomTexture(int w, int h) {
    textures_.releaseId(bloomTexture_);
    bloomWidth_ = w;
    bloomHeight_ = h;
    createBlankTexture(bloomTexture_, w, h);
}

void RendererBase::setBloomDirection(const Vector& direction) {
    bloomDirection_ = direction;
}

void RendererBase::beginBloomCapture() {
    recorder_.operation("beginBloomCapture");
    capturingBloom_ = true;
    viewport_ = {0, 0, bloomWidth_, bloomHeight_};
    device_.setViewport(0, 0, bloomWidth_, bloomHeight_);
}

void RendererBase::endBloomCapture() {
    recorder_.operation("endBloomCapture");
    device_.copyFrameToTexture(bloomTexture_, bloomWidth_, bloomHeight_);
    device_.clear();
    viewport_ = {0, 0, width_, height_};
    device_.setViewport(0, 0, width_, height_);
    capturingBloom_ = false;
}

void RendererBase::drawBloom() {
    recorder_.operation("drawBloom");
    texturing_ = true;
    blending_ = true;
    blend_ = Blend::additive;
    enter2D();
    // A tenth of white.
    colour_ = {255, 255, 255, 26};
    const int pixels = settingOf(settings_.bloomblurpixels);
    const float p = pixels != 0 ? static_cast<float>(pixels) : defaultBlur;
    textures_.bindId(bloomTexture_);
    drawScreenQuad(width_, height_, p, p);
    drawScreenQuad(width_, height_, -p, p);
    drawScreenQuad(width_, height_, -p, -p);
    drawScreenQuad(width_, height_, p, -p);
    leave2D();
    texturing_ = false;
    blending_ = false;
    textures_.unbind();
}

// --- Fonts and pictures ---

FontRenderer* RendererBase::getFontRenderer() {
    return fonts_.get();
}

void RendererBase::setFontRenderer(std::unique_ptr<FontRenderer> fonts) {
    fonts_ = std::move(fonts);
}

bool RendererBase::movieFrameDue(float timeMs) {
    if (timeMs < movieFrameAt_)
        return false;
    movieFrameAt_ = timeMs + movieFrameInterval;
    return true;
}

std::optional<Image> RendererBase::readFrame() {
    return device_.readFrame(width_, height_);
}

void RendererBase::takeScreenshot() {
    pictures_.writeScreenshot(readFrame(), settingOf(settings_.movierecord) > 0);
}

void RendererBase::grabThumbnail() {
    pictures_.grabThumbnail(readFrame());
}

bool RendererBase::saveThumbnail(const std::string& path, int width, int height) {
    textures_.unload(path);
    return pictures_.saveThumbnail(path, width, height);
}

}  // namespace bc
