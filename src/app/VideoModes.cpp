// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/VideoModes.h"

#include "app/Options.h"
#include "app/Subsystems.h"
#include "command/CommandRegistry.h"
#include "command/GameVar.h"
#include "core/Log.h"
#include "gui/GUIManager.h"
#include "input/Console.h"
#include "particles/ParticleManager.h"
#include "ports/FontRenderer.h"
#include "ports/IGameplay.h"
#include "ports/IRenderer.h"

#include <SDL/SDL.h>

namespace bc {

namespace {

/// The size of a run without a window, and of the command resdbg.
constexpr int usualWidth = 1024;
constexpr int usualHeight = 768;

}  // namespace

void VideoModes::registerCommands() {
    CommandRegistry& c = commands();
    c.registerCommand("change the video mode based on vars", "vidrestart", [this] {
        setVideoMode(vars().getVar("vidwidth")->intValue(), vars().getVar("vidheight")->intValue(),
                     vars().getVar("vidfullscreen")->intValue() > 0);
    });
    c.registerCommand("debug res test", "resdbg", [this] {
        IRenderer& renderer = subsystems_.renderer();
        renderer.setVideoMode(usualWidth, usualHeight, false);
        renderer.getFontRenderer()->init();
        subsystems_.gui().setScreenSize(usualWidth, usualHeight);
        subsystems_.console().setScreenSize(usualWidth, usualHeight);
    });
}

void VideoModes::initVideoMode() {
    GameVar* width = vars().getVar("vidwidth");
    GameVar* height = vars().getVar("vidheight");
    GameVar* fullscreen = vars().getVar("vidfullscreen");
    GameVar* firstRun = vars().getVar("firstrun");
    applyCommandLine();
    IRenderer& renderer = subsystems_.renderer();
    if (options_.headless) {
        // The configured size does not count, so that the run is the same for everybody.
        renderer.setVideoMode(options_.width.value_or(usualWidth),
                              options_.height.value_or(usualHeight), false);
        return;
    }
    if (firstRun->intValue() == 1) {
        firstRun->setString("0");
        const SDL_VideoInfo* desktop = SDL_GetVideoInfo();
        const int w = desktop->current_w;
        const int h = desktop->current_h;
        logLine("Current Desktop Res: " + std::to_string(w) + " x " + std::to_string(h));
        renderer.setVideoMode(w, h, true);
        width->setInt(w);
        height->setInt(h);
        fullscreen->setInt(1);
        return;
    }
    renderer.setVideoMode(width->intValue(), height->intValue(), fullscreen->intValue() > 0);
}

void VideoModes::applyCommandLine() {
    if (options_.width) {
        overrideSetting("vidwidth", *options_.width);
        overrideSetting("vidheight", *options_.height);
        overrideSetting("firstrun", 0);
    }
    if (options_.width || options_.fullscreen)
        overrideSetting("vidfullscreen", options_.fullscreen ? 1 : 0);
}

void VideoModes::overrideSetting(const char* name, int value) {
    GameVar* var = vars().getVar(name);
    overridden_.push_back({var, var->intValue(), value});
    var->setInt(value);
}

void VideoModes::restoreSettings() {
    for (const Overridden& setting : overridden_)
        if (setting.var->intValue() == setting.inForce)
            setting.var->setInt(setting.configured);
    overridden_.clear();
}

void VideoModes::passScreenSize() {
    const int w = subsystems_.renderer().getWidth();
    const int h = subsystems_.renderer().getHeight();
    subsystems_.gameplay().setScreenSize(w, h);
    subsystems_.gui().setScreenSize(static_cast<float>(w), static_cast<float>(h));
    subsystems_.console().setScreenSize(w, h);
}

void VideoModes::setVideoMode(int width, int height, bool fullscreen) {
    vars().getVar("vidwidth")->setInt(width);
    vars().getVar("vidheight")->setInt(height);
    vars().getVar("vidfullscreen")->setInt(fullscreen ? 1 : 0);
    IRenderer& renderer = subsystems_.renderer();
    renderer.setVideoMode(width, height, fullscreen);
    renderer.getFontRenderer()->init();
    passScreenSize();
    particleManager().reloadTextures(renderer);
    for (Body* body : subsystems_.world().allBodies())
        body->textureHandle = -1;
}

}  // namespace bc
