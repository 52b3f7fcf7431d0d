// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/Renderer.h"

#include "core/Log.h"
#include "core/Ticks.h"
#include "ports/FontRenderer.h"
#include "render/DevilImage.h"
#include "render/RefreshRate.h"

#include <SDL/SDL.h>

#include <algorithm>
#include <cstdlib>

namespace bc {

namespace {

constexpr int fallbackWidth = 640;
constexpr int fallbackHeight = 480;
/// Some display servers end the program instead of refusing a larger window.
constexpr int maxModeSide = 8192;
// Milliseconds.
constexpr int keyRepeatDelay = 500;
constexpr int keyRepeatInterval = 30;
/// Near and far lie so far apart that 16 bits would mix up neighbouring depths.
constexpr int depthBits = 24;

bool openWindow(int width, int height, bool fullscreen) {
    if (width < 1 || height < 1 || width > maxModeSide || height > maxModeSide)
        return false;
    const Uint32 flags = SDL_OPENGL | SDL_ANYFORMAT | (fullscreen ? SDL_FULLSCREEN : 0);
    return SDL_SetVideoMode(width, height, 0, flags) != nullptr;
}

/// A machine without sound plays on in silence.
bool startSdl() {
    return SDL_Init(SDL_INIT_AUDIO | SDL_INIT_VIDEO | SDL_INIT_NOPARACHUTE) != -1 ||
           SDL_Init(SDL_INIT_VIDEO | SDL_INIT_NOPARACHUTE) != -1;
}

}  // namespace

Renderer::Renderer() : RendererBase(device) {}

Renderer::~Renderer() {
    // Once SDL has quit there is no context left to tell.
    if (SDL_WasInit(SDL_INIT_VIDEO) == 0)
        device.close();
}

bool Renderer::init() {
    if (!startSdl())
        return false;
    logLine("Initialised SDL");
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) < 0)
        return false;
    logLine("Initialised Video");
    const SDL_VideoInfo* desktop = SDL_GetVideoInfo();
    const int width = desktop != nullptr ? desktop->current_w : fallbackWidth;
    const int height = desktop != nullptr ? desktop->current_h : fallbackHeight;
    logLine("Current Desktop Res: " + std::to_string(width) + " x " + std::to_string(height));
    SDL_GL_SetAttribute(SDL_GL_DOUBLEBUFFER, 1);
    SDL_GL_SetAttribute(SDL_GL_DEPTH_SIZE, depthBits);
    bindStartVariables();
    if (!setVideoMode(width, height, false) || !initWindow())
        return false;
    startDevil();
    return true;
}

bool Renderer::initWindow() {
    SDL_Rect** modes = SDL_ListModes(nullptr, SDL_FULLSCREEN | SDL_HWSURFACE);
    if (modes == nullptr) {
        logLine("No modes available!");
        std::exit(-1);
    }
    modes_.clear();
    // SDL answers "any size" with a pointer of all ones.
    if (reinterpret_cast<std::intptr_t>(modes) == -1) {
        logLine("All resolutions available.");
    } else {
        logText("Available Modes\n\n");
        for (SDL_Rect** mode = modes; *mode != nullptr; ++mode) {
            const int w = (*mode)->w;
            const int h = (*mode)->h;
            logText(" " + std::to_string(w) + " x " + std::to_string(h) + ",");
            modes_.emplace_back(static_cast<float>(w), static_cast<float>(h));
        }
        std::reverse(modes_.begin(), modes_.end());
    }
    logText("\n\n");

    SDL_WM_SetCaption("Brightclash", "Brightclash");
    SDL_EnableKeyRepeat(keyRepeatDelay, keyRepeatInterval);
    SDL_EnableUNICODE(1);
    SDL_ShowCursor(SDL_DISABLE);
    SDL_WM_GrabInput(SDL_GRAB_OFF);
    restartFrameClock();
    bindWindowVariables();
    createBloomTexture(256, 256);
    return true;
}

bool Renderer::setVideoMode(int width, int height, bool fullscreen) {
    SDL_GL_SetAttribute(SDL_GL_SWAP_CONTROL, settingOf(settings().vsync) == 1 ? 1 : 0);
    setFullscreen(fullscreen);
    if (!openWindow(width, height, fullscreen)) {
        logLine("Error: Video Mode change failed");
        logLine("Falling back to 640x480 : windowed");
        width = fallbackWidth;
        height = fallbackHeight;
        setFullscreen(false);
        if (!openWindow(width, height, false)) {
            device.close();
            return false;
        }
    }
    modeChanged(width, height);
    limiter_.setRate(monitorRefreshRate());
    return true;
}

void Renderer::present() {
    device.flush();
    SDL_GL_SwapBuffers();
    // Some drivers take the wish to wait for the monitor and do not wait.
    if (settingOf(settings().vsync) != 1 || ticksAreVirtual())
        return;
    const unsigned wait = limiter_.waitAfterFrame(ticks());
    if (wait > 0)
        SDL_Delay(wait);
}

}  // namespace bc
