// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Whole bodies: polygon, outline, glow, label.
#include "ports/Drawable.h"
#include "ports/FontRenderer.h"
#include "render/RendererBase.h"

#include <algorithm>

namespace bc {

namespace {

const std::string outlineTexture = "data/particles/brightpart.tga";
const std::string fontName = "vera";
/// Half the width of an outline's beam, and how far before the polygon it lies.
constexpr float outlineWidth = 2.0F;
constexpr float outlineDepth = 0.001F;
constexpr float plainDepth = 0.1F;
constexpr float labelHeight = 24;
constexpr int labelSize = 12;
/// Lighter bodies do not move by themselves.
constexpr float massive = 0.0001F;
/// How far the glow reaches, in half extents of the body, and the most passes of it.
constexpr float glowReach = 1.5F;
constexpr int maxGlowSteps = 16;

bool isTextured(const Drawable& body) {
    return body.textured && !body.texture.empty();
}

}  // namespace

void RendererBase::recordBody(std::string_view operation, const Drawable& body) {
    recorder_.operation(operation, body.type, body.id, body.renderpos.x, body.renderpos.y,
                        body.zShift, body.angle, isTextured(body) ? body.texture : "untextured");
}

void RendererBase::drawBody(Drawable& body) {
    if (settingOf(settings_.drawbodies) <= 0)
        return;
    if (body.drawsItself()) {
        recordBody("drawBodySelf", body);
        body.drawSelf(*this);
        return;
    }
    if (!body.visible)
        return;
    recordBody("drawBody", body);
    enterBody(body);
    if (isTextured(body)) {
        useAlphaBlend();
        bindBodyTexture(body, settingOf(settings_.cachetextureids) >= 1);
    } else {
        texturing_ = false;
        blending_ = false;
    }
    fillBody(body);
    if (body.outlined && settingOf(settings_.drawoutlines) != 0 && !body.textured)
        outlineBody(body);
    if (body.hasGlow && !body.glowTexture.empty() && !capturingBloom_)
        glowBody(body);
    leaveBody();
    body.drawExtras(*this);
    if (settingOf(settings_.rbodystring) == 1)
        labelBody(body, false);
}

void RendererBase::drawBodyPlain(Drawable& body) {
    if (!body.visible)
        return;
    recordBody("drawBodyPlain", body);
    enterBody(body);
    const bool outlines = settingOf(settings_.drawoutlines) != 0;
    texturing_ = isTextured(body);
    if (texturing_)
        bindBodyTexture(body, false);
    blending_ = outlines;
    blend_ = outlines ? Blend::shade : blend_;
    fillBody(body);
    if (body.outlined && outlines && !body.textured)
        outlineBodyPlain(body);
    if (outlines)
        blend_ = Blend::alpha;
    leaveBody();
    body.drawExtras(*this);
    if (settingOf(settings_.rbodystring) == 1)
        labelBody(body, true);
}

void RendererBase::enterBody(const Drawable& body) {
    modelview_.push();
    modelview_.top().translate(body.renderpos.x, body.renderpos.y, body.zShift);
    // Bodies turn clockwise.
    modelview_.top().rotateZ(-static_cast<double>(body.angle));
    modelviewChanged();
}

void RendererBase::leaveBody() {
    modelview_.pop();
    modelviewChanged();
}

void RendererBase::bindBodyTexture(Drawable& body, bool mayUseId) {
    texturing_ = true;
    if (mayUseId && body.textureHandle != -1) {
        textures_.bindId(body.textureHandle);
        return;
    }
    useTexture(body.texture, body.clampTexture);
    if (mayUseId)
        body.textureHandle = textures_.boundId();
}

void RendererBase::fillBody(Drawable& body) {
    const std::size_t count = body.localVertices.size();
    if (count < 3)
        return;
    TextureTransform texture;
    if (body.hasTextureTransform())
        body.textureTransform(texture);
    const auto coordinate = [&](std::size_t i) {
        const TexCoord t = i < body.texCoords.size() ? body.texCoords[i] : TexCoord{};
        return TexCoord(t.u * texture.scaleX + texture.offsetX,
                        t.v * texture.scaleY + texture.offsetY);
    };
    const auto corner = [&](QuadVertex& out, std::size_t i) {
        const Vector& p = body.localVertices[i];
        const TexCoord t = coordinate(i);
        const Colour colour = i < body.colours.size() ? toColour(body.colours[i]) : Colour{};
        put(out, p.x, p.y, p.z, t.u, t.v, colour);
    };
    bool tiles = false;
    for (std::size_t i = 0; texturing_ && i < count; ++i) {
        const TexCoord t = coordinate(i);
        tiles = tiles || !(t.u >= 0 && t.u <= 1 && t.v >= 0 && t.v <= 1);
    }
    constexpr std::size_t grant = RenderDevice::maxCorners / 3;
    for (std::size_t first = 0; first < count - 2; first += grant) {
        const std::size_t triangles = std::min(grant, count - 2 - first);
        QuadVertex* out = allot(Primitive::triangles, triangles * 3, tiles);
        for (std::size_t i = first; out != nullptr && i < first + triangles; ++i, out += 3) {
            corner(out[0], 0);
            corner(out[1], i + 1);
            corner(out[2], i + 2);
        }
    }
}

void RendererBase::outlineBody(const Drawable& body) {
    colour_ = toColour(body.outlinecolour);
    state_.depthTest = false;
    useAlphaBlend();
    useTexture(outlineTexture, false);
    for (std::size_t i = 1; i < body.localVertices.size(); ++i)
        beam(body.localVertices[i - 1], body.localVertices[i], outlineDepth, outlineWidth, true);
    state_.depthTest = true;
}

void RendererBase::outlineBodyPlain(const Drawable& body) {
    const std::size_t count = body.localVertices.size();
    colour_ = toColour(body.outlinecolour);
    texturing_ = false;
    const float previous = state_.lineWidth;
    state_.lineWidth = static_cast<float>(std::max(body.outlinewidth, 1));
    for (std::size_t i = 0; i < count; ++i) {
        Vector from = body.localVertices[i];
        Vector to = body.localVertices[(i + 1) % count];
        from.z += plainDepth;
        to.z += plainDepth;
        line(from, colour_, to, colour_);
    }
    state_.lineWidth = previous;
}

void RendererBase::glowBody(const Drawable& body) {
    const int steps = std::clamp(body.glowSteps, 0, maxGlowSteps);
    if (steps == 0 || body.localVertices.empty())
        return;
    Vector low = body.localVertices.front();
    Vector high = low;
    for (const Vector& p : body.localVertices) {
        low.set(std::min(low.x, p.x), std::min(low.y, p.y));
        high.set(std::max(high.x, p.x), std::max(high.y, p.y));
    }
    const float w = (high.x - low.x) * glowReach;
    const float h = (high.y - low.y) * glowReach;
    const float left = (low.x + high.x - w) * 0.5F;
    const float top = (low.y + high.y + h) * 0.5F;
    const Colour before = colour_;
    const bool depthWrite = state_.depthWrite;
    state_.depthWrite = false;
    blending_ = true;
    blend_ = Blend::additive;
    useTexture(body.glowTexture, true);
    const int fade = 255 / steps;
    for (int i = 0; i < steps; ++i) {
        colour_ = {255, 255, 255, static_cast<std::uint8_t>(255 - i * fade)};
        quad(left, top, 0, w, h);
    }
    blend_ = Blend::alpha;
    state_.depthWrite = depthWrite;
    colour_ = before;
}

void RendererBase::labelBody(const Drawable& body, bool plain) {
    if (!fonts_)
        return;
    label_ = body.id;
    label_ += " : ";
    label_ += body.type;
    label_ += body.mass >= massive ? " : Movable" : " : Unmovable";
    fonts_->setFont(fontName, labelSize);
    setTexturing(true);
    const float y = body.renderpos.y + labelHeight;
    if (plain) {
        setColour(0, 0, 0);
        fonts_->drawText(body.renderpos.x, y, body.zShift + plainDepth, label_);
    } else {
        setColour(255, 255, 255);
        fonts_->drawShadowText(body.renderpos.x, y, body.zShift + outlineDepth, label_);
    }
}

}  // namespace bc
