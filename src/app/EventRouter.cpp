// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/EventRouter.h"

#include "app/EventPump.h"
#include "input/InputManager.h"

namespace bc {

void EventRouter::pumpEvents() {
    SDL_Event event;
    while (pump_.poll(event)) {
        switch (event.type) {
            case SDL_QUIT:
                quitRequested_ = true;
                break;
            case SDL_KEYDOWN:
            case SDL_KEYUP:
                input_.updateModifiers(event.key.keysym.mod);
                input_.keyEvent(event.type == SDL_KEYDOWN, event.key.keysym.sym,
                                event.key.keysym.unicode);
                break;
            case SDL_MOUSEMOTION:
                input_.mouseMotion(event.motion.x, event.motion.y, event.motion.xrel,
                                   event.motion.yrel);
                break;
            case SDL_MOUSEBUTTONDOWN:
                input_.mouseButtonDown(event.button.x, event.button.y, event.button.button);
                break;
            case SDL_MOUSEBUTTONUP:
                input_.mouseButtonUp(event.button.x, event.button.y, event.button.button);
                break;
            default:
                break;
        }
    }
}

}  // namespace bc
