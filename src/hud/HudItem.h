// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RGBAColour.h"

#include <string>
#include <string_view>

class TiXmlElement;

namespace bc {

class FontRenderer;
class IRenderer;

/// Something a Hud draws: a place and size on the design canvas (640 x 480, origin bottom left)
/// and where that came to lie in the window. The Hud that holds it sets the pixel side.
class HudItem {
  public:
    struct Box {
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;
    };

    /// label names the item in dumps.
    explicit HudItem(std::string_view label) : label_(label) {}
    virtual ~HudItem() = default;
    HudItem(const HudItem&) = delete;
    HudItem& operator=(const HudItem&) = delete;

    /// In the renderer's overlay mode; dt in seconds. Only called while visible.
    virtual void draw(IRenderer& renderer, float dt) = 0;
    /// Fills an element with what is shown and where.
    virtual void dump(TiXmlElement& element) const;

    // Design units.
    void setSize(int width, int height);
    void setPosition(int x, int y);
    [[nodiscard]] const Box& design() const { return design_; }

    // Window pixels.
    void setPixelSize(int width, int height);
    void setPixelPosition(int x, int y);
    [[nodiscard]] const Box& pixels() const { return pixels_; }
    /// How many times their font's size letters are drawn.
    void setTextScale(int scale) { textScale_ = scale; }
    [[nodiscard]] int textScale() const { return textScale_; }

    void setColour(const RGBAColour& colour) { colour_ = colour; }
    void setColour(float r, float g, float b, float a) { colour_.set(r, g, b, a); }
    [[nodiscard]] const RGBAColour& colour() const { return colour_; }

    bool visible = true;

  private:
    std::string label_;
    Box design_;
    Box pixels_;
    int textScale_ = 1;
    RGBAColour colour_;
};

/// A line of text. Its position is where the pen starts, on the line the letters stand on; one that
/// would run out of the window on the right starts as much farther left, at the edge at most.
class TextHudItem : public HudItem {
  public:
    using HudItem::HudItem;

    void draw(IRenderer& renderer, float dt) override;
    void dump(TiXmlElement& element) const override;

    void setText(std::string_view text) { text_.assign(text); }
    [[nodiscard]] const std::string& text() const { return text_; }
    /// Size in pixels, to be multiplied by the text scale.
    void setFont(std::string_view name, int size);
    [[nodiscard]] const std::string& fontName() const { return fontName_; }
    [[nodiscard]] int fontSize() const { return fontSize_; }
    // Window pixels.
    [[nodiscard]] float widthOf(FontRenderer& fonts, std::string_view text) const;
    [[nodiscard]] int lineHeight() const { return fontSize_ * textScale(); }

    /// White over black, without regard to the item's colour.
    bool shadow = false;
    /// Puts a black edge around the letters, for a colour that does not stand out by itself.
    bool outline = false;

  private:
    void chooseFont(FontRenderer& fonts) const;
    void drawOutline(FontRenderer& fonts, float x, float y) const;

    int fontSize_ = 12;
    std::string fontName_ = "vera";
    std::string text_;
};

/// The line of the upgrade screen that stands for one upgrade level.
class UpgradeLevelText final : public TextHudItem {
  public:
    UpgradeLevelText(std::string_view label, int level) : TextHudItem(label), level_(level) {}
    [[nodiscard]] int level() const { return level_; }

  private:
    int level_;
};

/// A picture. Its position is its top-left corner; it extends right and down.
class ImageHudItem final : public HudItem {
  public:
    using HudItem::HudItem;

    void draw(IRenderer& renderer, float dt) override;
    void dump(TiXmlElement& element) const override;

    /// The picture base + extension, and base + "_glow" + extension for the glow.
    void setImage(std::string_view base, std::string_view extension);
    [[nodiscard]] const std::string& image() const { return image_; }

    bool clamp = false;
    bool additive = false;
    /// Lays glowPasses additive copies of the glow picture over it, each with an alpha that is
    /// glowAlphaStep below the one before.
    bool glow = false;
    int glowPasses = 1;
    int glowAlphaStep = 0;

  private:
    std::string image_;
    std::string glowImage_;
};

}  // namespace bc
