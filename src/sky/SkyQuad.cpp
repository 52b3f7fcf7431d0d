// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "sky/SkyQuad.h"

#include "ports/IRenderer.h"
#include "resources/XmlAttributes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace bc {

namespace {

/// World units; the far plane lies nearer than this.
constexpr float farthest = 1.0e6F;

/// Steps a channel; a limit that it passes is where it lands and turns round.
void bounce(float& channel, float& rate, float step, float low, float high) {
    channel += step;
    if (channel > high) {
        channel = high;
        rate = -rate;
    }
    if (channel < low) {
        channel = low;
        rate = -rate;
    }
}

std::uint8_t roundedByte(float channel) {
    return static_cast<std::uint8_t>(std::lround(std::clamp(channel, 0.0F, 255.0F)));
}

Vector withinReach(const Vector& v) {
    return {std::clamp(v.x, -farthest, farthest), std::clamp(v.y, -farthest, farthest),
            std::clamp(v.z, -farthest, farthest)};
}

}  // namespace

void SkyQuad::read(const TiXmlElement& rect) {
    textured = xml::readBool(rect, "textured");
    clamp = xml::readBool(rect, "clamptex");
    glow = xml::readBool(rect, "glow");
    textureName = xml::readString(rect, "texture");
    glowSteps = std::clamp(xml::readInt(rect, "glowsteps"), 0, maxGlowSteps);
    if (xml::has(rect, "blendstyle"))
        blendStyle = xml::readInt(rect, "blendstyle");
    xml::readValue(rect, "mincol", minColour);
    xml::readValue(rect, "maxcol", maxColour);

    Vector topLeft;
    Vector size;
    xml::readValue(rect, "pos", topLeft);
    xml::readValue(rect, "dimension", size);
    topLeft = withinReach(topLeft);
    size = withinReach(size);
    const auto corner = [&](const std::string& prefix, float right, float down) {
        RGBAColour colour;
        RGBAColour rate;
        TexCoord texCoord;
        xml::readValue(rect, (prefix + "col").c_str(), colour);
        xml::readValue(rect, (prefix + "colvel").c_str(), rate);
        xml::readValue(rect, (prefix + "texcoord").c_str(), texCoord);
        addVertex(topLeft + Vector(size.x * right, -size.y * down), colour, texCoord);
        addColour(rate.r, rate.g, rate.b, rate.a);
    };
    corner("tl", 0, 0);
    corner("tr", 1, 0);
    corner("br", 1, 1);
    corner("bl", 0, 1);
}

void SkyQuad::drift(std::size_t corner, float dt, float alphaFactor) {
    Vertex& v = vertices()[corner];
    RGBAColour& rate = colours()[corner];
    bounce(v.r, rate.r, rate.r * dt, minColour.r, maxColour.r);
    bounce(v.g, rate.g, rate.g * dt, minColour.g, maxColour.g);
    bounce(v.b, rate.b, rate.b * dt, minColour.b, maxColour.b);
    bounce(v.a, rate.a, rate.a * dt * alphaFactor, minColour.a, maxColour.a);
}

void SkyQuad::draw(IRenderer& renderer, float dt) {
    if (textured)
        renderer.bindTexture(textureName, clamp);
    std::array<QuadVertex, maxGlowSteps * maxVertices> batch;
    std::size_t used = 0;
    const int passes = glow ? glowSteps : 1;
    float alphaFactor = 1;
    for (int pass = 0; pass < passes; ++pass) {
        for (std::size_t i = 0; i < vertices().size(); ++i) {
            drift(i, dt, alphaFactor);
            const Vertex& v = vertices()[i];
            batch[used++] = {v.x,
                             v.y,
                             v.z,
                             v.u,
                             v.v,
                             roundedByte(v.r),
                             roundedByte(v.g),
                             roundedByte(v.b),
                             roundedByte(v.a)};
        }
        if (glow)
            alphaFactor -= 1 / static_cast<float>(glowSteps);
    }
    renderer.drawQuads(std::span(batch.data(), used));
}

}  // namespace bc
