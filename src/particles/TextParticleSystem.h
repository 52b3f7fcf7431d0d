// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "particles/ParticleSystem.h"

#include <string>
#include <string_view>

namespace bc {

/// "text": a short text that floats in the world: every particle is drawn as the system's text,
/// centred on it, in its colour and as high as it is.
class TextParticleSystem final : public ParticleSystem {
  public:
    /// Bytes kept of a text; the rest is cut off.
    static constexpr std::size_t textLimit = 64;

    TextParticleSystem() : ParticleSystem(ParticleKind::text) {}

    void init(std::shared_ptr<const ParticleSystemParams> definition, int id) override;
    void draw(IRenderer& renderer, QuadBatch& batch) override;
    void setText(std::string_view text) { text_ = text.substr(0, textLimit); }
    [[nodiscard]] const std::string& text() const { return text_; }

  private:
    std::string text_;
};

}  // namespace bc
