// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "input/InputManager.h"

#include "core/Log.h"
#include "core/Text.h"
#include "input/Console.h"
#include "input/InputTarget.h"
#include "ports/IGUI.h"
#include "ports/IGame.h"
#include "ports/IRenderer.h"
#include "resources/ResourceManager.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

namespace bc {

namespace {

constexpr int escapeKey = 27;
constexpr int backquoteKey = 96;

/// The bit in SDL's modifier mask for each value of Modifier.
constexpr std::array<int, 11> modifierBits = {0x1000, 0x2000, 0x4000, 0x0040, 0x0080, 0x0001,
                                              0x0002, 0x0100, 0x0200, 0x0400, 0x0800};

}  // namespace

void InputManager::init(IGame* game, IRenderer* renderer, IGUI* gui, Console* console) {
    game_ = game;
    renderer_ = renderer;
    gui_ = gui;
    console_ = console;
}

void InputManager::loadKeymap(const std::string& path) {
    TiXmlDocument document;
    if (!resourceManager().loadXML(document, path)) {
        logLine("Could not load keymap file: " + path);
        return;
    }
    for (const TiXmlElement* e = document.RootElement()->FirstChildElement(); e != nullptr;
         e = e->NextSiblingElement())
        keyNames_[xml::readInt(*e, "sdlcode")] = xml::readString(*e, "keyname");
}

const std::string& InputManager::keyName(int sym) const {
    static const std::string none;
    const auto found = keyNames_.find(sym);
    return found != keyNames_.end() ? found->second : none;
}

std::optional<int> InputManager::findKey(std::string_view name) const {
    for (const auto& [code, keyName] : keyNames_) {
        if (equalsNoCase(keyName, name))
            return code;
    }
    return std::nullopt;
}

void InputManager::registerTarget(const std::string& name, InputTarget* target) {
    targets_[name] = target;
}

void InputManager::setTarget(const std::string& name) {
    previousTarget_ = currentTarget_;
    currentTarget_ = name;
    if (InputTarget* loser = findTarget(previousTarget_))
        loser->onLoseFocus();
    if (InputTarget* gainer = current())
        gainer->onGainFocus();
}

InputTarget* InputManager::findTarget(const std::string& name) const {
    const auto found = targets_.find(name);
    return found != targets_.end() ? found->second : nullptr;
}

void InputManager::keyEvent(bool pressed, int sym, int unicode) {
    if (!pressed) {
        if (InputTarget* target = current())
            target->keyUp(sym, sym, keyName(sym));
        return;
    }
    if (sym == escapeKey && handleEscape())
        return;
    if (sym == backquoteKey)
        toggleConsole();
    if (InputTarget* target = current())
        target->keyDown(sym, unicode, keyName(sym));
}

bool InputManager::handleEscape() {
    if (gui_ == nullptr || (console_ != nullptr && console_->isOpen()))
        return false;
    if (gui_->isVisible()) {
        assignTarget("gui");
        return false;
    }
    // A save made from the menus shows the level as its picture, so it is taken before they appear.
    if (renderer_ != nullptr)
        renderer_->grabThumbnail();
    gui_->setVisible(true);
    setTarget("gui");
    logLine("Show GUI");
    if (game_ != nullptr)
        game_->setWorldActive(false);
    return true;
}

void InputManager::toggleConsole() {
    if (console_ == nullptr)
        return;
    console_->setOpen(!console_->isOpen());
    if (console_->isOpen()) {
        setTarget("console");
    } else {
        console_->clearInput();
        assignTarget(previousTarget_);
    }
}

void InputManager::hideGUI() {
    if (game_ == nullptr || gui_ == nullptr || !game_->isLevelLoaded() || !gui_->isVisible())
        return;
    logLine("Hide GUI");
    gui_->setVisible(false);
    game_->setWorldActive(true);
    assignTarget("game");
}

void InputManager::mouseMotion(float x, float y, float relX, float relY) {
    mouseX_ = x;
    mouseY_ = y;
    mouseRelX_ = relX;
    mouseRelY_ = relY;
    if (renderer_ != nullptr) {
        const Vector world = renderer_->unproject(x, y, 0);
        setMouseWorld(world.x, world.y);
        renderer_->begin2D();
        const Vector overlay = renderer_->screenToWorld(x, y);
        mouse2D_.x = overlay.x;
        mouse2D_.y = overlay.y;
        renderer_->end2D();
    }
    InputTarget* target = current();
    if (target == nullptr)
        return;
    target->mouseWorld = mouseWorld_;
    target->mouse2D = mouse2D_;
    const bool in2D = target->getUses2D();
    begin2DIf(in2D);
    target->mouseMove(x, y, relX, relY);
    end2DIf(in2D);
}

void InputManager::mouseButtonDown(float x, float y, int button) {
    InputTarget* target = current();
    if (target == nullptr)
        return;
    const bool in2D = target->getUses2D();
    begin2DIf(in2D);
    target->mouseDown(x, y, button);
    end2DIf(in2D);
}

void InputManager::mouseButtonUp(float x, float y, int button) {
    InputTarget* target = current();
    if (target == nullptr)
        return;
    const bool in2D = target->getUses2D();
    begin2DIf(in2D);
    target->mouseUp(x, y, button);
    end2DIf(in2D);
}

void InputManager::updateModifiers(int sdlModMask) {
    for (std::size_t i = 0; i < modifierCount; ++i)
        modifiers_[i] = (sdlModMask & modifierBits[i]) != 0;
}

bool InputManager::isModifierDown(int index) const {
    return index >= 0 && index < static_cast<int>(modifierCount) &&
           modifiers_[static_cast<std::size_t>(index)];
}

void InputManager::begin2DIf(bool wanted) {
    if (wanted && renderer_ != nullptr)
        renderer_->begin2D();
}

void InputManager::end2DIf(bool wanted) {
    if (wanted && renderer_ != nullptr)
        renderer_->end2D();
}

}  // namespace bc
