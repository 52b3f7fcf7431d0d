// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "particles/ParticleSystem.h"

#include <string>
#include <string_view>

namespace bc {

/// "text": a short text that floats in the world. Each particle is drawn as the text of the system,
/// with the particle's centre, colour and height.
class TextParticleSystem final : public ParticleSystem {
  public:
    /// The limit for a text in bytes; a longer one is cut off.
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
