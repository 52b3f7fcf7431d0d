// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "sky/LensFlare.h"

#include "ports/IRenderer.h"
#include "resources/XmlAttributes.h"
#include "sky/SkyServices.h"

#include <algorithm>
#include <string>

namespace bc {

namespace {

const std::string spriteTexture = "data/particles/defaultparticle.tga";

/// World units: half a sprite, and how far around the point its surroundings are probed.
constexpr float spriteHalfSize = 16;
constexpr float probeDistance = 64;

// What a clear ray to the point, and one to each of the four corners, adds to the strength.
constexpr float pointStrength = 63.75F;
constexpr float cornerStrength = 47.8125F;
// The same for the weight of one corner.
constexpr float pointWeight = 0.3F;
constexpr float cornerWeight = 0.7F;

struct Corner {
    float x;
    float y;
    float u;
    float v;
};
/// In the order in which rays are cast and corners are drawn: top left, then clockwise.
constexpr std::array<Corner, 4> corners{
    {{-1, 1, 0, 1}, {1, 1, 1, 1}, {1, -1, 1, 0}, {-1, -1, 0, 0}}};

}  // namespace

float LensFlare::strength() const {
    return clear_[0] * pointStrength +
           (clear_[1] + clear_[2] + clear_[3] + clear_[4]) * cornerStrength;
}

float LensFlare::weight(int corner) const {
    return clear_[0] * pointWeight + clear_[static_cast<std::size_t>(corner) + 1] * cornerWeight;
}

void LensFlare::look(const Vector& eye, const Vector& point, float dt, SightLine* sight) {
    const float change = settled_ ? dt / fadeTime : 1.0F;
    const auto follow = [&](float& clear, const Vector& target) {
        const float seen = !sight || sight->isClear(eye, target) ? 1.0F : 0.0F;
        clear += std::clamp(seen - clear, -change, change);
    };
    follow(clear_[0], point);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Vector offset(corners[i].x * probeDistance, corners[i].y * probeDistance);
        follow(clear_[i + 1], point + offset);
    }
    settled_ = true;
}

void LensFlare::draw(IRenderer& renderer, const Vector& camera, float dt, SightLine* sight) {
    const Vector point = camera + position;
    const Vector eye(camera.x, camera.y, -camera.z);
    look(eye, point, dt, sight);
    if (strength() <= 0)
        return;
    const Vector direction = normalised(point - eye);
    const float length = bc::distance(eye, point);
    renderer.setTexturing(true);
    renderer.setBlending(true);
    renderer.setAdditiveBlend();
    renderer.setDepthWrite(false);
    for (const float scale : {1.0F, 0.5F, 0.25F})
        drawSprite(renderer, eye, direction, length, scale, spriteHalfSize);
    renderer.setDepthWrite(true);
}

void LensFlare::drawSprite(IRenderer& renderer, const Vector& origin, const Vector& direction,
                           float distance, float scale, float halfSize) const {
    const Vector centre = origin + direction * (distance * scale);
    std::array<QuadVertex, corners.size()> quad;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const float shine = strength() / 255 * weight(static_cast<int>(i));
        quad[i] = {centre.x + corners[i].x * halfSize,
                   centre.y + corners[i].y * halfSize,
                   centre.z,
                   corners[i].u,
                   corners[i].v,
                   RGBAColour::toByte(colour.r * shine),
                   RGBAColour::toByte(colour.g * shine),
                   RGBAColour::toByte(colour.b * shine),
                   255};
    }
    renderer.bindTexture(spriteTexture);
    renderer.drawQuads(quad);
}

void LensFlare::dump(TiXmlElement& element) const {
    xml::writeValue(element, "position", position);
    xml::writeValue(element, "colour", colour);
    xml::writeFloat(element, "strength", strength());
}

}  // namespace bc
