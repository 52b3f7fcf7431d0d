// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/Game.h"

#include "app/ConfigFile.h"
#include "app/GameLogoScene.h"
#include "app/SystemCommands.h"
#include "core/Log.h"
#include "core/Text.h"
#include "gameplay/player/GameplayInput.h"
#include "hud/OverlayEffect.h"

#include <SDL/SDL.h>

#include <utility>

namespace bc {

Game::Game(Options options)
    : options_(std::move(options)),
      subsystems_(options_.headless),
      clock_(options_),
      pump_(!options_.headless),
      router_(pump_, subsystems_.input()),
      script_(subsystems_, pump_, router_),
      modes_(subsystems_, options_),
      startup_(subsystems_, modes_, options_),
      presenter_(subsystems_, variables_),
      pause_(subsystems_),
      intents_(subsystems_),
      stepper_(subsystems_, variables_, intents_),
      scene_(subsystems_, variables_, pause_, intents_),
      levels_(subsystems_, stepper_, pause_, overlay_),
      saves_(subsystems_, variables_, levels_, pause_, overlay_),
      playerCommands_(subsystems_),
      loop_({subsystems_, clock_, script_, router_, presenter_, stepper_, scene_, levels_, saves_,
             pause_, overlay_}),
      dumps_({subsystems_, loop_, presenter_, stepper_, levels_, saves_, pause_, overlay_}),
      queries_(subsystems_.world()) {}

Game::~Game() {
    // After a failed start nothing is written: the settings may not even have been read.
    if (subsystems_.isReleased())
        return;
    subsystems_.release();
    if (!options_.headless)
        SDL_Quit();
}

bool Game::init() {
    if (!startup_.openWindow(*this))
        return false;
    registerCommands();
    variables_.bind();
    executeConfigFiles();
    return startup_.loadData(*this);
}

void Game::registerCommands() {
    registerSystemCommands(!options_.headless);
    registerConfigCommands(subsystems_.gameInput());
    modes_.registerCommands();
    presenter_.registerCommands();
    pause_.registerCommands();
    scene_.registerCommands();
    levels_.registerCommands();
    saves_.registerCommands();
    playerCommands_.registerCommands();
    dumps_.registerCommands();
    queries_.registerCommands();
}

void Game::run() {
    presenter_.start();
    script_.load(options_.scriptFile);
    if (!options_.skipLogo)
        GameLogoScene(subsystems_, clock_, pump_, router_, presenter_).run();
    if (!router_.isQuitting())
        startup_.runStartCommands();
    loop_.run(options_.frames);
}

void Game::shutdown() {
    modes_.restoreSettings();
    writeConfig(subsystems_.gameInput(), "data/config.txt", true);
    subsystems_.release();
}

void Game::closeDown() {
    const float rate = presenter_.averageFrameRate();
    if (!options_.headless) {
        SDL_WM_GrabInput(SDL_GRAB_OFF);
        SDL_CloseAudio();
        SDL_Quit();
    }
    logLine("AVG FPS:" + formatFloat(rate));
    setQuit(true);
}

void Game::setOverlay(std::unique_ptr<OverlayEffect> overlay) {
    overlay_.setOverlay(std::move(overlay));
}

}  // namespace bc
