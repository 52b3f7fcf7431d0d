// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class IRenderer;

/// The menus as the rest of the game sees them: shown or hidden, drawn over everything.
class IGUI {
  public:
    virtual ~IGUI() = default;
    [[nodiscard]] virtual bool isVisible() const = 0;
    virtual void setVisible(bool visible) = 0;
    /// Called between the renderer's begin2D and end2D, also while hidden.
    virtual void draw(IRenderer& renderer) = 0;
    /// Window size in pixels.
    virtual void setScreenSize(float width, float height) = 0;
};

}  // namespace bc
