// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/scenery/TextBody.h"

#include "core/Text.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Spawning.h"
#include "ports/FontRenderer.h"
#include "ports/IRenderer.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

#include <algorithm>

namespace bc {

namespace {

/// Seconds a thrown-up text lives, and how fast it rises (units a second).
constexpr float floatSeconds = 2;
constexpr float riseSpeed = 16;
constexpr int maxFontSize = 512;
/// Width of a letter in font sizes, where there are no fonts to ask.
constexpr float guessedLetter = 0.6F;

FontRenderer* fontsOf(IRenderer* renderer) {
    return renderer != nullptr ? renderer->getFontRenderer() : nullptr;
}

}  // namespace

TextBody::TextBody() {
    type = "textbody";
    outlined = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

std::unique_ptr<Body> TextBody::create() const {
    return std::make_unique<TextBody>();
}

void TextBody::applyAttributes(const std::map<std::string, std::string>& attributes) {
    GameBody::applyAttributes(attributes);
    for (const auto& [name, value] : attributes) {
        if (equalsNoCase(name, "text"))
            text = value;
        else if (equalsNoCase(name, "font"))
            font = value;
        else if (equalsNoCase(name, "size"))
            size = std::clamp(parseInt(value), 1, maxFontSize);
        else if (equalsNoCase(name, "shadow"))
            shadow = parseBool(value);
    }
}

void TextBody::onLoaded() {
    GameBody::onLoaded();
    computeAnchor();
}

void TextBody::computeAnchor() {
    const std::vector<Vector>& corners = localVertices;
    if (corners.empty())
        return;
    const auto [left, right] = std::minmax_element(
        corners.begin(), corners.end(), [](const Vector& a, const Vector& b) { return a.x < b.x; });
    const auto [low, high] = std::minmax_element(
        corners.begin(), corners.end(), [](const Vector& a, const Vector& b) { return a.y < b.y; });
    anchor_ = Vector(left->x, (low->y + high->y) / 2);
}

void TextBody::floatAway() {
    floating_ = true;
    age_ = 0;
    // It takes part in nothing: neither moved by the world nor kept in saves.
    mass = invMass = 0;
    solid = false;
    const auto letters = static_cast<float>(text.size());
    float width = letters * static_cast<float>(size) * guessedLetter;
    if (FontRenderer* fonts = fontsOf(GameplaySingleton::instance().renderer())) {
        fonts->setFont(font, size);
        width = fonts->textWidth(text);
    }
    makeBox(std::max(width * scale, 1.0F), static_cast<float>(size) * scale);
    computeAnchor();
}

void TextBody::update(float dt) {
    GameBody::update(dt);
    if (!floating_)
        return;
    age_ += dt;
    if (age_ >= floatSeconds)
        removeFromWorld(*this);
    else
        placeAt(*this, pos + Vector(0, riseSpeed * dt));
}

void TextBody::drawSelf(IRenderer& renderer) {
    FontRenderer* fonts = fontsOf(&renderer);
    if (!visible || fonts == nullptr)
        return;
    fonts->setFont(font, size);
    fonts->setScale(scale);
    renderer.setTexturing(true);
    const float x = renderpos.x + anchor_.x;
    const float y = renderpos.y + anchor_.y;
    const float z = renderpos.z + zShift;
    const float left = floating_ ? 1 - age_ / floatSeconds : 1;
    const int alpha = static_cast<int>(255 * std::clamp(left, 0.0F, 1.0F));
    if (shadow) {
        renderer.setColour(0, 0, 0, alpha);
        fonts->drawText(x + 1, y - 1, z, text);
    }
    renderer.setColour(255, 255, 255, alpha);
    fonts->drawText(x, y, z, text);
    fonts->setScale(1);
}

void TextBody::dumpState(TiXmlElement& debug) const {
    GameBody::dumpState(debug);
    xml::writeString(debug, "text", text);
    xml::writeString(debug, "font", font);
    xml::writeInt(debug, "size", size);
    xml::writeBool(debug, "shadow", shadow);
    xml::writeFloat(debug, "scale", scale);
    xml::writeValue(debug, "anchor", pos + anchor_);
    xml::writeBool(debug, "floating", floating_);
    xml::writeFloat(debug, "age", age_);
}

}  // namespace bc
