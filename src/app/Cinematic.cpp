// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/Cinematic.h"

#include "app/EventPump.h"
#include "app/EventRouter.h"
#include "app/PassClock.h"
#include "app/Presenter.h"
#include "app/Subsystems.h"
#include "ports/IRenderer.h"

namespace bc {

namespace {

/// Seconds. A key still held from starting the program does not skip the scene.
constexpr float skipAfter = 0.3F;

}  // namespace

Cinematic::Cinematic(Subsystems& subsystems, const PassClock& clock, EventPump& pump,
                     EventRouter& router, Presenter& presenter)
    : renderer_(subsystems.renderer()),
      frameClock_(subsystems.frameClock()),
      passClock_(clock),
      pump_(pump),
      router_(router),
      presenter_(presenter) {}

void Cinematic::run() {
    active_ = true;
    frameClock_.restart();
    while (active_) {
        beginFrame();
        frame(frameClock_.frameSeconds());
        endFrame();
    }
}

void Cinematic::beginFrame() {
    passClock_.beginPass();
    frameClock_.tick();
    elapsed_ += frameClock_.frameSeconds();
    renderer_.beginFrame();
    pumpEvents();
}

void Cinematic::pumpEvents() {
    SDL_Event event;
    while (pump_.poll(event)) {
        switch (event.type) {
            case SDL_QUIT:
                router_.setQuit(true);
                end();
                break;
            case SDL_KEYDOWN:
            case SDL_KEYUP:
            case SDL_MOUSEBUTTONDOWN:
            case SDL_MOUSEBUTTONUP:
                if (elapsed_ > skipAfter)
                    end();
                break;
            default:
                break;
        }
    }
}

void Cinematic::endFrame() {
    renderer_.endFrame();
    presenter_.countFrame();
}

}  // namespace bc
