// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/ImageFontRenderer.h"

#include "core/Log.h"
#include "core/Text.h"
#include "ports/IRenderer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

namespace bc {

namespace {

struct FontFile {
    const char* file;
    const char* name;
    int size;
};

constexpr std::array<FontFile, 4> gameFonts{{
    {"vera_12.xml", "vera", 12},
    {"verabd_14.xml", "vera", 14},
    {"verabd_18.xml", "vera", 18},
    {"verabd_24.xml", "vera", 24},
}};
/// Sharper in large windows than the others enlarged; the game does without them.
constexpr std::array<FontFile, 2> largeFonts{{
    {"verabd_28.xml", "vera", 28},
    {"verabd_36.xml", "vera", 36},
}};
constexpr int codes = 256;
/// Measures while there is no font, in pixels.
constexpr float noFontSize = 16;

/// Glyphs on their way to the renderer: sent when the page changes or there is no room left.
class GlyphBatch {
  public:
    explicit GlyphBatch(IRenderer& renderer) : renderer_(renderer) {
        const RGBAColour colour = renderer.getColour();
        corner_.r = RGBAColour::toByte(colour.r);
        corner_.g = RGBAColour::toByte(colour.g);
        corner_.b = RGBAColour::toByte(colour.b);
        corner_.a = RGBAColour::toByte(colour.a);
    }
    ~GlyphBatch() { send(); }
    GlyphBatch(const GlyphBatch&) = delete;
    GlyphBatch& operator=(const GlyphBatch&) = delete;

    void add(const CharacterDescriptor& d, float x, float y, float z, float w, float h) {
        if (d.textureId != page_ || count_ == corners_.size()) {
            send();
            if (d.textureId != page_)
                renderer_.bindTextureId(d.textureId);
            page_ = d.textureId;
        }
        put(x, y + h, z, d.s, d.t);
        put(x + w, y + h, z, d.s2, d.t);
        put(x + w, y, z, d.s2, d.t2);
        put(x, y, z, d.s, d.t2);
    }

  private:
    void put(float x, float y, float z, float u, float v) {
        QuadVertex& corner = corners_[count_++];
        corner = corner_;
        corner.x = x;
        corner.y = y;
        corner.z = z;
        corner.u = u;
        corner.v = v;
    }
    void send() {
        if (count_ > 0)
            renderer_.drawQuads({corners_.data(), count_});
        count_ = 0;
    }

    IRenderer& renderer_;
    QuadVertex corner_{};
    int page_ = std::numeric_limits<int>::min();
    std::array<QuadVertex, 256> corners_;
    std::size_t count_ = 0;
};

int codeOf(char c) {
    return static_cast<unsigned char>(c);
}

}  // namespace

bool ImageFontRenderer::init() {
    unloadFonts();
    bool loaded = true;
    for (const FontFile& f : gameFonts)
        loaded = loadFont(f.file, f.name, f.size) && loaded;
    for (const FontFile& f : largeFonts)
        loadFont(f.file, f.name, f.size);
    setFont("vera", 14);
    if (!loaded || renderer_ == nullptr)
        return false;
    fetchPages();
    renderer_->setAlphaBlend();
    return true;
}

void ImageFontRenderer::fetchPages() {
    pages_.clear();
    const std::string folder = "data/fonts/";
    for (const auto& font : fonts_)
        for (const std::string& page : font->getImageNames()) {
            const std::string path = folder + page;
            renderer_->bindTexture(path);
            pages_[path] = renderer_->getTextureId(path);
        }
    for (const auto& font : fonts_)
        for (int code = 0; code < codes; ++code)
            if (CharacterDescriptor* d = font->getDescriptor(code)) {
                const auto page = pages_.find(folder + d->image);
                d->textureId = page != pages_.end() ? page->second : 0;
            }
}

void ImageFontRenderer::unloadFonts() {
    current_ = nullptr;
    fonts_.clear();
}

void ImageFontRenderer::setRenderer(IRenderer* renderer) {
    if (renderer == nullptr)
        logLine("NULL RENDERER SET");
    renderer_ = renderer;
}

bool ImageFontRenderer::loadFont(const std::string& fileName, const std::string& name, int size) {
    auto font = std::make_unique<Font>();
    if (!font->load(fileName))
        return false;
    font->size = size;
    font->name = name;
    fonts_.push_back(std::move(font));
    return true;
}

void ImageFontRenderer::setFont(std::string_view name, int size) {
    if (current_ != nullptr && current_->size == size && current_->name == name)
        return;
    for (const auto& font : fonts_)
        if (font->size == size && font->name == name)
            current_ = font.get();
}

void ImageFontRenderer::drawText(float x, float y, std::string_view text) {
    drawText(x, y, 0, text);
}

void ImageFontRenderer::drawText(float x, float y, float z, std::string_view text) {
    if (current_ == nullptr || renderer_ == nullptr)
        return;
    note(x, y, z, text);
    renderer_->setBlending(true);
    renderer_->setAlphaBlend();
    GlyphBatch batch(*renderer_);
    float pen = snap_ ? std::trunc(x) : x;
    const float baseline = snap_ ? std::trunc(y) : y;
    for (const char c : text) {
        const CharacterDescriptor* d = std::as_const(*current_).getDescriptor(codeOf(c));
        if (d == nullptr) {
            logLine("NULL CHARACTER DESCRIPTOR");
            continue;
        }
        const float w = static_cast<float>(d->width) * scale_;
        const float h = static_cast<float>(d->height) * scale_;
        const float bottom = baseline - (h - static_cast<float>(d->top) * scale_);
        if (d->width != 0 && d->height != 0)
            batch.add(*d, pen, bottom, z, w, h);
        const float step = std::max(d->xadvance * scale_, w) + spacing_;
        pen += snap_ ? std::trunc(step) : step;
    }
}

void ImageFontRenderer::note(float x, float y, float z, std::string_view text) const {
    if (!renderer_->isDumpingFrame())
        return;
    std::string line = "text " + formatFloat(x) + " " + formatFloat(y) + " " + formatFloat(z) +
                       " " + current_->name + " " + std::to_string(current_->size) + " \"";
    line += text;
    renderer_->noteInDump(line + "\"");
}

void ImageFontRenderer::drawShadowText(float x, float y, std::string_view text) {
    drawShadowText(x, y, 0, text);
}

void ImageFontRenderer::drawShadowText(float x, float y, float z, std::string_view text) {
    if (renderer_ == nullptr)
        return;
    renderer_->setColour(0, 0, 0);
    drawText(x + 1, y - 1, z, text);
    renderer_->setColour(255, 255, 255);
    drawText(x, y, z, text);
}

float ImageFontRenderer::textWidth(std::string_view text) const {
    if (current_ == nullptr)
        return noFontSize;
    float width = 0;
    for (const char c : text)
        if (const CharacterDescriptor* d = std::as_const(*current_).getDescriptor(codeOf(c)))
            width += std::max(d->xadvance, static_cast<float>(d->width)) + spacing_;
    return width;
}

float ImageFontRenderer::textHeight(std::string_view /*text*/) const {
    return current_ != nullptr ? static_cast<float>(current_->size) : noFontSize;
}

float ImageFontRenderer::centreX(float x, float w, std::string_view text) const {
    return x + w * 0.5F - textWidth(text) * 0.5F;
}

float ImageFontRenderer::centreY(float y, float h, std::string_view text) const {
    return y - h * 0.5F - textHeight(text) * 0.5F;
}

}  // namespace bc
