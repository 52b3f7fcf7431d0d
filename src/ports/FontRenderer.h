// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace bc {

class IRenderer;

/// Draws and measures text in the current font. Coordinates are those of the renderer's current
/// view; in the overlay they are pixels from the bottom left. Each byte of a text is one character
/// code.
class FontRenderer {
  public:
    virtual ~FontRenderer() = default;

    /// Loads the game's fonts, or loads them again. False when at least one could not be read.
    virtual bool init() = 0;
    virtual void unloadFonts() = 0;
    /// The renderer to draw with. It is not owned; it must be set before init and outlive every
    /// drawing call.
    virtual void setRenderer(IRenderer* renderer) = 0;
    /// Makes the font with this name and height in pixels the current one. When there is none, the
    /// current font stays.
    virtual void setFont(std::string_view name, int size) = 0;
    virtual void drawText(float x, float y, std::string_view text) = 0;
    virtual void drawText(float x, float y, float z, std::string_view text) = 0;
    /// Draws the text in white, with a black copy behind it one unit to the right and below.
    virtual void drawShadowText(float x, float y, std::string_view text) = 0;
    virtual void drawShadowText(float x, float y, float z, std::string_view text) = 0;
    /// The size in pixels before scaling; 16 when there is no current font.
    [[nodiscard]] virtual float textWidth(std::string_view text) const = 0;
    [[nodiscard]] virtual float textHeight(std::string_view text) const = 0;
    /// The x at which drawText centres the text between x and x + w.
    [[nodiscard]] virtual float centreX(float x, float w, std::string_view text) const = 0;
    /// The y at which drawText centres the text between y - h and y.
    [[nodiscard]] virtual float centreY(float y, float h, std::string_view text) const = 0;
    /// Whether each character is drawn at a whole pixel.
    virtual void setSnap(bool snap) = 0;
    /// The factor by which texts are drawn larger than their font; 1 at first.
    virtual void setScale(float scale) = 0;
    [[nodiscard]] virtual float getScale() const = 0;
};

}  // namespace bc
