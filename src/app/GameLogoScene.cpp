// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/GameLogoScene.h"

#include "app/Game.h"
#include "ports/FontRenderer.h"
#include "ports/IRenderer.h"

namespace bc {

namespace {

// Alpha units a second, and seconds at full brightness.
constexpr float fadeSpeed = 80;
constexpr float holdSeconds = 2;

}  // namespace

void GameLogoScene::frame(float dt) {
    fade(dt);
    draw();
}

void GameLogoScene::fade(float dt) {
    if (alpha_ < 0 && fadingOut_)
        active_ = false;
    if (alpha_ > 255) {
        alpha_ = 255;
        fadingOut_ = true;
        holdUntil_ = elapsed_ + holdSeconds;
    }
    if (alpha_ < 0) {
        alpha_ = 0;
        fadingOut_ = false;
    }
    if (elapsed_ > holdUntil_)
        alpha_ += (fadingOut_ ? -1.0F : 1.0F) * dt * fadeSpeed;
}

void GameLogoScene::draw() {
    IRenderer& renderer = *game_.getRenderer();
    const int width = renderer.getWidth();
    const int height = renderer.getHeight();
    renderer.begin2D();
    renderer.setBlending(true);
    renderer.getFontRenderer()->setFont("vera", 24);
    renderer.setTexturing(true);
    renderer.setColour(255, 255, 255, static_cast<int>(alpha_));
    renderer.drawImage(static_cast<float>(width / 2 - 307), static_cast<float>(height / 2 + 125), 0,
                       614, 125, "data/images/brightclashprod.png", false, true);
    renderer.drawImage(static_cast<float>(width / 2 - 221), static_cast<float>(height / 2 - 68), 0,
                       443, 68, "data/images/mglogo.png", false, true);
    renderer.end2D();
}

}  // namespace bc
