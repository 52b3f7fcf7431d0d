// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "hud/OverlayEffect.h"

#include "ports/IRenderer.h"
#include "resources/XmlAttributes.h"

#include <algorithm>

namespace bc {

void OverlayEffect::update(float dt) {
    const auto move = [dt](float& channel, float rate) {
        channel = std::clamp(channel + rate * dt, 0.0F, 255.0F);
    };
    move(colour.r, colourRate.r);
    move(colour.g, colourRate.g);
    move(colour.b, colourRate.b);
    move(colour.a, colourRate.a);
}

void OverlayEffect::draw(IRenderer& renderer, float dt) {
    elapsed += dt;
    if (elapsed > duration) {
        active = false;
        return;
    }
    update(dt);
    if (inOverlayMode)
        renderer.begin2D();
    if (textured)
        renderer.bindTexture(textureName);
    else
        renderer.setTexturing(false);
    renderer.setBlending(true);
    if (additive)
        renderer.setAdditiveBlend();
    else
        renderer.setAlphaBlend();
    renderer.setColour(colour);
    const auto width = static_cast<float>(renderer.getWidth());
    const auto height = static_cast<float>(renderer.getHeight());
    renderer.drawQuad(0, height, depth, width, height);
    if (inOverlayMode)
        renderer.end2D();
}

void OverlayEffect::dump(TiXmlElement& element) const {
    xml::writeBool(element, "active", active);
    xml::writeFloat(element, "duration", duration);
    xml::writeFloat(element, "elapsed", elapsed);
    xml::writeValue(element, "colour", colour);
    xml::writeValue(element, "rate", colourRate);
    xml::writeBool(element, "additive", additive);
    xml::writeString(element, "texture", textured ? textureName : std::string());
}

SimpleFadeOverlay::SimpleFadeOverlay(const RGBAColour& from, float alphaRate, float seconds) {
    duration = seconds;
    colour = from;
    colourRate.a = alphaRate;
}

std::unique_ptr<SimpleFadeOverlay> SimpleFadeOverlay::fromBlack(float seconds) {
    return std::make_unique<SimpleFadeOverlay>(RGBAColour{0, 0, 0, 255}, -255 / seconds, seconds);
}

}  // namespace bc
