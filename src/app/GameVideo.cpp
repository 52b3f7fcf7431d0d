// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The video mode: which one is in force, and who is told.
#include "app/Game.h"
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

void Game::overrideSetting(const char* name, int value) {
    GameVar* var = vars().getVar(name);
    overridden_.push_back({var, var->intValue(), value});
    var->setInt(value);
}

void Game::restoreSettings() {
    for (const Overridden& setting : overridden_)
        if (setting.var->intValue() == setting.inForce)
            setting.var->setInt(setting.configured);
    overridden_.clear();
}

void Game::initVideoMode() {
    GameVar* width = vars().getVar("vidwidth");
    GameVar* height = vars().getVar("vidheight");
    GameVar* fullscreen = vars().getVar("vidfullscreen");
    GameVar* firstRun = vars().getVar("firstrun");
    if (options_.width) {
        overrideSetting("vidwidth", *options_.width);
        overrideSetting("vidheight", *options_.height);
        overrideSetting("firstrun", 0);
    }
    if (options_.width || options_.fullscreen)
        overrideSetting("vidfullscreen", options_.fullscreen ? 1 : 0);
    if (options_.headless) {
        // The books of a run without a window are those of the usual one.
        renderer_->setVideoMode(options_.width.value_or(1024), options_.height.value_or(768),
                                false);
        return;
    }
    if (firstRun->intValue() == 1) {
        firstRun->setString("0");
        const SDL_VideoInfo* desktop = SDL_GetVideoInfo();
        const int w = desktop->current_w;
        const int h = desktop->current_h;
        logLine("Current Desktop Res: " + std::to_string(w) + " x " + std::to_string(h));
        renderer_->setVideoMode(w, h, true);
        width->setInt(w);
        height->setInt(h);
        fullscreen->setInt(1);
        return;
    }
    renderer_->setVideoMode(width->intValue(), height->intValue(), fullscreen->intValue() > 0);
}

void Game::passScreenSize() {
    const int w = renderer_->getWidth();
    const int h = renderer_->getHeight();
    if (gameplay_)
        gameplay_->setScreenSize(w, h);
    gui_->setScreenSize(static_cast<float>(w), static_cast<float>(h));
    console_->setScreenSize(w, h);
}

void Game::setVideoMode(int width, int height, bool fullscreen) {
    vars().getVar("vidwidth")->setInt(width);
    vars().getVar("vidheight")->setInt(height);
    vars().getVar("vidfullscreen")->setInt(fullscreen ? 1 : 0);
    renderer_->setVideoMode(width, height, fullscreen);
    renderer_->getFontRenderer()->init();
    passScreenSize();
    particleManager().reloadTextures(*renderer_);
    for (Body* body : world_.allBodies())
        body->textureHandle = -1;
}

}  // namespace bc
