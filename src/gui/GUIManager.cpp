// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gui/GUIManager.h"

#include "core/Text.h"
#include "input/InputManager.h"
#include "ports/FontRenderer.h"
#include "ports/IRenderer.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

namespace bc {

namespace {

struct Hint {
    const char* text;
    int size;
    /// Pixels above the middle of the window.
    float above;
};

constexpr Hint hints[] = {
    {"Brightclash", 24, 60},
    {"Escape: back to the game", 14, 0},
    {"` (backquote): console", 14, -24},
    {"quit in the console: leave", 14, -48},
};

}  // namespace

GUIManager::GUIManager() {
    uses2D = true;
}

void GUIManager::setScreenSize(float width, float height) {
    width_ = width;
    height_ = height;
}

void GUIManager::draw(IRenderer& renderer) {
    if (!visible_)
        return;
    FontRenderer& fonts = *renderer.getFontRenderer();
    renderer.setTexturing(false);
    renderer.setBlending(true);
    renderer.setAlphaBlend();
    renderer.setColour(11, 16, 32, 190);
    renderer.drawQuad(0, height_, 0, width_, height_);
    renderer.setTexturing(true);
    for (const Hint& hint : hints) {
        fonts.setFont("vera", hint.size);
        renderer.setColour(200, 240, 255, 255);
        fonts.drawText(fonts.centreX(0, width_, hint.text), height_ / 2 + hint.above, hint.text);
    }
}

void GUIManager::dump(TiXmlElement& parent) const {
    auto& e = *parent.LinkEndChild(new TiXmlElement("GUIManager"))->ToElement();
    xml::writeString(e, "name", "gui");
    xml::writeInt(e, "x", 0);
    xml::writeInt(e, "y", 0);
    xml::writeInt(e, "width", static_cast<int>(width_));
    xml::writeInt(e, "height", static_cast<int>(height_));
    xml::writeBool(e, "visible", visible_);
    xml::writeBool(e, "hovered", false);
    xml::writeBool(e, "pressed", false);
    xml::writeBool(e, "focused", visible_);
    for (const Hint& hint : hints)
        xml::writeString(*e.LinkEndChild(new TiXmlElement("Label"))->ToElement(), "text",
                         hint.text);
}

bool GUIManager::showCutscene(const std::string&) {
    return false;
}

void GUIManager::keyDown(int, int, const std::string& keyName) {
    if (input_ != nullptr && equalsNoCase(keyName, "escape"))
        input_->hideGUI();
}

}  // namespace bc
