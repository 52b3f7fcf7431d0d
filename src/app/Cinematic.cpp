// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/Cinematic.h"

#include "app/Game.h"
#include "ports/IRenderer.h"

namespace bc {

namespace {

// A key still held from starting the program does not skip the scene.
constexpr float skipAfter = 0.3F;

}  // namespace

Cinematic::Cinematic(Game& game) : game_(game) {}

void Cinematic::run() {
    active_ = true;
    game_.getTimer()->restart();
    timer_.restart();
    while (active_) {
        beginFrame();
        frame(game_.getTimer()->frameSeconds());
        endFrame();
    }
}

void Cinematic::beginFrame() {
    game_.advanceClock();
    game_.tickClock();
    elapsed_ += game_.getTimer()->frameSeconds();
    game_.getRenderer()->beginFrame();
    pumpEvents();
}

void Cinematic::pumpEvents() {
    SDL_Event event;
    while (game_.pollEvent(event)) {
        if (!skippable_)
            continue;
        switch (event.type) {
            case SDL_QUIT:
                game_.setQuit(true);
                active_ = false;
                break;
            case SDL_KEYDOWN:
            case SDL_KEYUP:
            case SDL_MOUSEBUTTONDOWN:
            case SDL_MOUSEBUTTONUP:
                active_ = active_ && elapsed_ <= skipAfter;
                break;
            default:
                break;
        }
    }
}

void Cinematic::endFrame() {
    timer_.tick();
    if (timer_.elapsed() >= timer_.rate)
        timer_.restart();
    game_.getRenderer()->endFrame();
    game_.countFrame();
}

}  // namespace bc
