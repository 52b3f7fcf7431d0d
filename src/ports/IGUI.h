// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class IRenderer;

/// The menus, which are drawn over everything else while they are visible.
class IGUI {
  public:
    virtual ~IGUI() = default;
    [[nodiscard]] virtual bool isVisible() const = 0;
    virtual void setVisible(bool visible) = 0;
    /// Called once a frame between the renderer's begin2D and end2D, also while the menus are
    /// hidden.
    virtual void draw(IRenderer& renderer) = 0;
    /// The size of the window in pixels.
    virtual void setScreenSize(float width, float height) = 0;
};

}  // namespace bc
