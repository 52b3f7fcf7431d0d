// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/GameLogoScene.h"

#include "ports/FontRenderer.h"
#include "ports/IRenderer.h"

namespace bc {

namespace {

/// Units of alpha a second.
constexpr float fadeSpeed = 80;
/// At full brightness.
constexpr float holdSeconds = 2;

}  // namespace

void GameLogoScene::frame(float dt) {
    fade(dt);
    draw();
}

void GameLogoScene::fade(float dt) {
    if (alpha_ < 0 && fadingOut_)
        end();
    if (alpha_ > 255) {
        alpha_ = 255;
        fadingOut_ = true;
        holdUntil_ = elapsed() + holdSeconds;
    }
    if (alpha_ < 0) {
        alpha_ = 0;
        fadingOut_ = false;
    }
    if (elapsed() > holdUntil_)
        alpha_ += (fadingOut_ ? -1.0F : 1.0F) * dt * fadeSpeed;
}

void GameLogoScene::draw() {
    IRenderer& screen = renderer();
    const int width = screen.getWidth();
    const int height = screen.getHeight();
    screen.begin2D();
    screen.setBlending(true);
    screen.getFontRenderer()->setFont("vera", 24);
    screen.setTexturing(true);
    screen.setColour(255, 255, 255, static_cast<int>(alpha_));
    screen.drawImage(static_cast<float>(width / 2 - 307), static_cast<float>(height / 2 + 125), 0,
                     614, 125, "data/images/brightclashprod.png", false, true);
    screen.drawImage(static_cast<float>(width / 2 - 221), static_cast<float>(height / 2 - 68), 0,
                     443, 68, "data/images/mglogo.png", false, true);
    screen.end2D();
}

}  // namespace bc
