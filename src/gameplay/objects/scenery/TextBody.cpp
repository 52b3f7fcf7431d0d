// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/scenery/TextBody.h"

#include "core/Text.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Spawning.h"
#include "ports/FontRenderer.h"
#include "ports/IRenderer.h"
#include "world/BodyFields.h"

#include <algorithm>

namespace bc {

namespace {

/// Seconds a thrown-up text lives, and how fast it rises (units a second).
constexpr float floatSeconds = 2;
constexpr float riseSpeed = 16;
constexpr int maxFontSize = 512;
constexpr std::string_view fonts[] = {"vera", "debug"};
/// Width of a letter in font sizes, where there are no fonts to ask.
constexpr float guessedLetter = 0.6F;

FontRenderer* fontsOf(IRenderer* renderer) {
    return renderer != nullptr ? renderer->getFontRenderer() : nullptr;
}

}  // namespace

TextBody::TextBody() {
    // Play makes them without the factory, too.
    type = "textbody";
    outlined = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

void TextBody::fields(BodyFields& f) {
    GameBody::fields(f);
    f.param("text", text, "What it says.").required();
    f.param("font", font, "Its font.").choices("font", fonts);
    f.param(
        "size", size, [this](int given) { size = std::clamp(given, 1, maxFontSize); }, "Its size.");
    f.param("shadow", shadow, "With a shadow.").inLevels("true");
    f.shown("text", text);
    f.shown("font", font);
    f.shown("size", size);
    f.shown("shadow", shadow);
    f.shown("scale", scale);
    f.shown("anchor", pos + anchor_);
    f.shown("floating", floating_);
    f.shown("age", age_);
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

}  // namespace bc
