// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/HudItem.h"

#include "core/FontRenderer.h"
#include "core/IRenderer.h"
#include "resources/XmlAttributes.h"

#include <algorithm>

namespace bc {

void HudItem::setSize(int width, int height) {
    design_.width = width;
    design_.height = height;
}

void HudItem::setPosition(int x, int y) {
    design_.x = x;
    design_.y = y;
}

void HudItem::setPixelSize(int width, int height) {
    pixels_.width = width;
    pixels_.height = height;
}

void HudItem::setPixelPosition(int x, int y) {
    pixels_.x = x;
    pixels_.y = y;
}

void HudItem::dump(TiXmlElement& element) const {
    xml::writeString(element, "name", label_);
    xml::writeBool(element, "visible", visible);
    xml::writeInt(element, "x", pixels_.x);
    xml::writeInt(element, "y", pixels_.y);
    xml::writeInt(element, "width", pixels_.width);
    xml::writeInt(element, "height", pixels_.height);
    xml::writeValue(element, "colour", colour_);
}

void TextHudItem::setFont(std::string_view name, int size) {
    fontName_.assign(name);
    fontSize_ = size;
}

void TextHudItem::draw(IRenderer& renderer, float) {
    FontRenderer* fonts = renderer.getFontRenderer();
    if (!fonts)
        return;
    renderer.setTexturing(true);
    renderer.setColour(colour());
    fonts->setFont(fontName_, fontSize_);
    auto x = static_cast<float>(pixels().x);
    const auto y = static_cast<float>(pixels().y);
    // Letters keep their size in small windows, where a long line would be cut off at the right.
    const float beyond = x + fonts->textWidth(text_) - static_cast<float>(renderer.getWidth());
    if (beyond > 0)
        x = std::max(x - beyond, 0.0F);
    if (shadow)
        fonts->drawShadowText(x, y, text_);
    else
        fonts->drawText(x, y, text_);
}

void TextHudItem::dump(TiXmlElement& element) const {
    HudItem::dump(element);
    xml::writeString(element, "text", text_);
    xml::writeString(element, "font", fontName_);
    xml::writeInt(element, "fontsize", fontSize_);
    xml::writeBool(element, "shadow", shadow);
}

void ImageHudItem::setImage(std::string_view base, std::string_view extension) {
    image_.assign(base).append(extension);
    glowImage_.assign(base).append("_glow").append(extension);
}

void ImageHudItem::draw(IRenderer& renderer, float) {
    const auto x = static_cast<float>(pixels().x);
    const auto y = static_cast<float>(pixels().y);
    const auto width = static_cast<float>(pixels().width);
    const auto height = static_cast<float>(pixels().height);
    renderer.setColour(colour());
    renderer.drawImage(x, y, 0, width, height, image_, additive, clamp);
    if (!glow)
        return;
    RGBAColour shine = colour();
    for (int pass = 0; pass < glowPasses; ++pass) {
        renderer.setColour(shine);
        renderer.drawImage(x, y, 0, width, height, glowImage_, true, clamp);
        shine.a -= static_cast<float>(glowAlphaStep);
    }
}

void ImageHudItem::dump(TiXmlElement& element) const {
    HudItem::dump(element);
    xml::writeString(element, "image", image_);
}

}  // namespace bc
