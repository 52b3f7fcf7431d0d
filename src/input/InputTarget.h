// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

#include <string>

namespace bc {

/// Receives the events of keyboard and mouse while InputManager has it as the current target.
/// Positions are window pixels from the top left; buttons have SDL's numbers.
class InputTarget {
  public:
    virtual ~InputTarget() = default;
    virtual void mouseMove(float x, float y, float relX, float relY) {
        mouseX = x;
        mouseY = y;
        mouseRelX = relX;
        mouseRelY = relY;
    }
    virtual void mouseDown(float, float, int) {}
    virtual void mouseUp(float, float, int) {}
    virtual void keyDown(int /*sym*/, int /*unicode*/, const std::string& /*keyName*/) {}
    virtual void keyUp(int /*sym*/, int /*unicode*/, const std::string& /*keyName*/) {}
    /// True when the mouse functions must be called between the renderer's begin2D and end2D.
    [[nodiscard]] virtual bool getUses2D() const { return uses2D; }
    virtual void onLoseFocus() {}
    virtual void onGainFocus() {}

    float mouseX = 0;
    float mouseY = 0;
    float mouseRelX = 0;
    float mouseRelY = 0;
    /// The place of the mouse in the world (world units) and in the overlay (pixels from the bottom
    /// left). InputManager sets them before each mouseMove.
    Vector mouseWorld;
    Vector mouse2D;
    bool uses2D = false;
};

}  // namespace bc
