// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "input/InputTarget.h"
#include "ports/IGUI.h"

#include <string>

class TiXmlElement;

namespace bc {

class InputManager;

/// The input target "gui" and what is drawn over the game while the menus are open.
class GUIManager final : public InputTarget, public IGUI {
  public:
    GUIManager();

    /// Not owned; asked to hide the menus when Escape is pressed.
    void setInputManager(InputManager* input) { input_ = input; }

    [[nodiscard]] bool isVisible() const override { return visible_; }
    void setVisible(bool visible) override { visible_ = visible; }
    void draw(IRenderer& renderer) override;
    void setScreenSize(float width, float height) override;
    /// One element a component, in the order of drawing.
    void dump(TiXmlElement& parent) const;
    /// False when there is nothing that could show it.
    bool showCutscene(const std::string& name);

    void keyDown(int sym, int unicode, const std::string& keyName) override;

  private:
    InputManager* input_ = nullptr;
    bool visible_ = false;
    float width_ = 0;
    float height_ = 0;
};

}  // namespace bc
