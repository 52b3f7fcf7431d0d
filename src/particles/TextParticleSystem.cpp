// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "particles/TextParticleSystem.h"

#include "ports/FontRenderer.h"
#include "ports/IRenderer.h"

namespace bc {

namespace {

/// Chooses the font that needs the least scaling for a text of this height and returns the font's
/// size. Small texts get the font "debug" if it is installed.
int chooseFace(FontRenderer& fonts, float height) {
    if (height <= 13) {
        fonts.setFont("vera", 12);
        fonts.setFont("debug", 12);
        return 12;
    }
    const int size = height <= 16 ? 14 : height <= 21 ? 18 : 24;
    fonts.setFont("vera", size);
    return size;
}

}  // namespace

void TextParticleSystem::init(std::shared_ptr<const ParticleSystemParams> definition, int id) {
    ParticleSystem::init(std::move(definition), id);
    text_.clear();
}

void TextParticleSystem::draw(IRenderer& renderer, QuadBatch&) {
    FontRenderer* fonts = renderer.getFontRenderer();
    if (fonts == nullptr || text_.empty() || liveCount() == 0)
        return;
    const float oldScale = fonts->getScale();
    renderer.setTexturing(true);
    pool().forEach([&](const ParticlePool::Block& p, int i) {
        const QuadBatch::Bytes colour = bytes(p, i);
        const float height = p.height[i];
        if (colour.a < 1 || height <= 0)
            return;
        const float scale = height / static_cast<float>(chooseFace(*fonts, height));
        fonts->setScale(scale);
        renderer.setColour(colour.r, colour.g, colour.b, colour.a);
        fonts->drawText(p.x[i] - fonts->textWidth(text_) * scale * 0.5F, p.y[i] - height * 0.5F,
                        p.z[i], text_);
    });
    fonts->setScale(oldScale);
}

}  // namespace bc
