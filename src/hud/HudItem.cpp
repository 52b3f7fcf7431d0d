// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "hud/HudItem.h"

#include "ports/FontRenderer.h"
#include "ports/IRenderer.h"
#include "resources/XmlAttributes.h"

#include <algorithm>

namespace bc {

namespace {

/// Pixels that stay free between a text and the right edge of the window.
constexpr float edge = 4;

}  // namespace

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

// Most fonts come doubled as well; what is larger than there is a font for is drawn enlarged.
void TextHudItem::chooseFont(FontRenderer& fonts) const {
    fonts.setFont(fontName_, fontSize_);
    fonts.setScale(static_cast<float>(textScale()));
    if (textScale() < 2)
        return;
    const int doubled = fontSize_ * 2;
    fonts.setFont(fontName_, doubled);
    if (fonts.textHeight("") == static_cast<float>(doubled))
        fonts.setScale(static_cast<float>(textScale()) / 2);
}

float TextHudItem::widthOf(FontRenderer& fonts, std::string_view text) const {
    const float scale = fonts.getScale();
    chooseFont(fonts);
    const float width = fonts.textWidth(text) * fonts.getScale();
    fonts.setScale(scale);
    return width;
}

void TextHudItem::drawOutline(FontRenderer& fonts, float x, float y) const {
    const auto width = static_cast<float>(textScale());
    for (const float dx : {-width, 0.0F, width})
        for (const float dy : {-width, 0.0F, width})
            if (dx != 0 || dy != 0)
                fonts.drawText(x + dx, y + dy, text_);
}

void TextHudItem::draw(IRenderer& renderer, float) {
    FontRenderer* fonts = renderer.getFontRenderer();
    if (!fonts)
        return;
    auto x = static_cast<float>(pixels().x);
    const auto y = static_cast<float>(pixels().y);
    // A long line would be cut off at the right of a small window.
    const float beyond =
        x + widthOf(*fonts, text_) + edge - static_cast<float>(renderer.getWidth());
    if (beyond > 0)
        x = std::max(x - beyond, 0.0F);
    renderer.setTexturing(true);
    const float scale = fonts->getScale();
    chooseFont(*fonts);
    if (outline) {
        renderer.setColour(0, 0, 0, static_cast<int>(colour().a));
        drawOutline(*fonts, x, y);
    }
    renderer.setColour(colour());
    if (shadow)
        fonts->drawShadowText(x, y, text_);
    else
        fonts->drawText(x, y, text_);
    fonts->setScale(scale);
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
