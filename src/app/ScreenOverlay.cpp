// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/ScreenOverlay.h"

#include "hud/OverlayEffect.h"

namespace bc {

ScreenOverlay::ScreenOverlay() = default;
ScreenOverlay::~ScreenOverlay() = default;

void ScreenOverlay::setOverlay(std::unique_ptr<OverlayEffect> overlay) {
    overlay_ = std::move(overlay);
}

void ScreenOverlay::endOverlay() {
    overlay_.reset();
}

void ScreenOverlay::startFadeIn() {
    setOverlay(SimpleFadeOverlay::fromBlack());
}

void ScreenOverlay::draw(IRenderer& renderer, float dt) {
    if (!overlay_)
        return;
    overlay_->draw(renderer, dt);
    if (!overlay_->active)
        endOverlay();
}

}  // namespace bc
