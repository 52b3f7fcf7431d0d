// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace bc {

class IRenderer;

/// Draws and measures text in the current font, set by name and pixel size. Coordinates are those
/// of the renderer's current view; in the overlay these are pixels from the bottom left.
/// A byte of the text is a character code.
class FontRenderer {
  public:
    virtual ~FontRenderer() = default;

    /// Loads the game's fonts (again). False when any of them could not be read.
    virtual bool init() = 0;
    virtual void unloadFonts() = 0;
    /// Not owned; needed before init and outliving every drawing call.
    virtual void setRenderer(IRenderer* renderer) = 0;
    /// An unknown name or size leaves the current font.
    virtual void setFont(std::string_view name, int size) = 0;
    virtual void drawText(float x, float y, std::string_view text) = 0;
    virtual void drawText(float x, float y, float z, std::string_view text) = 0;
    /// White with a black shadow one unit right and below.
    virtual void drawShadowText(float x, float y, std::string_view text) = 0;
    virtual void drawShadowText(float x, float y, float z, std::string_view text) = 0;
    /// Unscaled pixels; 16 when no font is current.
    [[nodiscard]] virtual float textWidth(std::string_view text) const = 0;
    [[nodiscard]] virtual float textHeight(std::string_view text) const = 0;
    /// Where text begins so that it is centred in x..x+w, or below y in a box of height h.
    [[nodiscard]] virtual float centreX(float x, float w, std::string_view text) const = 0;
    [[nodiscard]] virtual float centreY(float y, float h, std::string_view text) const = 0;
    /// Whole-pixel pen positions.
    virtual void setSnap(bool snap) = 0;
    virtual void setScale(float scale) = 0;
    [[nodiscard]] virtual float getScale() const = 0;
};

}  // namespace bc
