// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/FontRenderer.h"
#include "render/Font.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace bc {

/// Text from image fonts: each glyph a quad, whole pages in one batch. Fonts and page textures
/// are fetched by init, which is called again after every mode change.
class ImageFontRenderer final : public FontRenderer {
  public:
    bool init() override;
    void unloadFonts() override;
    void setRenderer(IRenderer* renderer) override;
    void setFont(std::string_view name, int size) override;
    void drawText(float x, float y, std::string_view text) override;
    void drawText(float x, float y, float z, std::string_view text) override;
    void drawShadowText(float x, float y, std::string_view text) override;
    void drawShadowText(float x, float y, float z, std::string_view text) override;
    [[nodiscard]] float textWidth(std::string_view text) const override;
    [[nodiscard]] float textHeight(std::string_view text) const override;
    [[nodiscard]] float centreX(float x, float w, std::string_view text) const override;
    [[nodiscard]] float centreY(float y, float h, std::string_view text) const override;
    void setSnap(bool snap) override { snap_ = snap; }
    void setScale(float scale) override { scale_ = scale; }
    [[nodiscard]] float getScale() const override { return scale_; }

    /// Adds a font of that name and pixel size, whatever its file calls itself.
    bool loadFont(const std::string& fileName, const std::string& name, int size);
    /// Null before any font was chosen.
    [[nodiscard]] const Font* currentFont() const { return current_; }

  private:
    void fetchPages();
    void note(float x, float y, float z, std::string_view text) const;

    IRenderer* renderer_ = nullptr;
    std::vector<std::unique_ptr<Font>> fonts_;
    /// Textures by path of the page.
    std::map<std::string, int> pages_;
    Font* current_ = nullptr;
    bool snap_ = true;
    float scale_ = 1;
    /// Between glyphs, in pixels.
    float spacing_ = 1;
};

}  // namespace bc
