// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The main loop: one pass, the fixed simulation step, pausing and the clock.
#include "app/Game.h"
#include "app/GameDumps.h"
#include "app/GameHandles.h"
#include "command/CommandRegistry.h"
#include "core/Log.h"
#include "core/Ticks.h"
#include "gameplay/player/GameplayInput.h"
#include "gameplay/player/Player.h"
#include "gui/GUIManager.h"
#include "hud/OverlayEffect.h"
#include "input/Console.h"
#include "particles/ParticleManager.h"
#include "ports/FontRenderer.h"
#include "ports/IGameplay.h"
#include "ports/IRenderer.h"
#include "sound/Sound.h"

#include <algorithm>

namespace bc {

void Game::tickClock() {
    frameClock_.tick();
}

void Game::advanceClock() {
    if (options_.virtualClock)
        advanceVirtualTicks(options_.frameMs);
}

void Game::runScriptLine(const std::string& line) {
    if (line[0] != '@') {
        commands().execute(line);
        return;
    }
    const auto symOf = [this](const std::string& name) {
        return input_.findKey(name).value_or(-1);
    };
    events_.cursorIsAt(static_cast<int>(gameInput_->mouseX), static_cast<int>(gameInput_->mouseY));
    if (!events_.inject(line, symOf))
        logLine("Script: unknown event: " + line);
    // At once, so that the lines of a pass take effect in file order, commands and events alike.
    pumpEvents();
}

void Game::pumpEvents() {
    SDL_Event event;
    while (pollEvent(event)) {
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

void Game::runFrame() {
    sound_->update();
    if (paused_) {
        runFramePaused();
        return;
    }
    renderer_->begin2D();
    gui_->draw(*renderer_);
    console_->draw(*renderer_);
    renderer_->end2D();
    endFrame();
    if (savePending_) {
        saveGame();
        tickClock();
        return;
    }
    tickClock();
    renderer_->beginFrame();
    if (levelLoaded_ && worldActive_) {
        if (mapLoadPending_) {
            mapLoadPending_ = false;
            const std::string map = std::move(pendingMapName_);
            const std::string spawn = std::move(pendingSpawnName_);
            pendingMapName_.clear();
            pendingSpawnName_.clear();
            loadMap(map, spawn);
            return;
        }
        if (loadPending_) {
            loadPending_ = false;
            if (!loadGame(saveName_)) {
                saveName_ = lastSaveName_;
                // Who waits to live again is not left waiting for a save that nobody can read.
                if (player_->dead)
                    requestMapLoad(currentLevel_, "");
            }
            return;
        }
        updateWorld();
        renderWorld();
    } else {
        listen();
    }
    const float dt = frameClock_.frameSeconds();
    if (overlay_) {
        overlay_->draw(*renderer_, dt);
        if (!overlay_->active)
            endOverlay();
    }
    if (gameplay_)
        gameplay_->drawHud(*renderer_, dt);
}

// Also while the world stands: the limit on sounds at once counts those that played at the last
// call, and a change of the volume sets all channels to it, the far ones as well.
void Game::listen() {
    sound_->updateListener(player_->renderpos);
}

void Game::runFramePaused() {
    listen();
    renderer_->begin2D();
    gui_->draw(*renderer_);
    console_->draw(*renderer_);
    renderer_->end2D();
    endFrame();
    if (savePending_)
        saveGame();
    renderer_->beginFrame();
    if (levelLoaded_ && worldActive_) {
        if (vars_->frustumcull->intValue() != 0)
            gatherVisible();
        renderWorld();
    }
    if (gameplay_)
        gameplay_->drawHud(*renderer_, frameClock_.frameSeconds());
    renderer_->begin2D();
    renderer_->setTexturing(true);
    renderer_->setColour(255, 255, 255, 150);
    const int left = renderer_->getWidth() / 2 - 128;
    const int bottom = renderer_->getHeight() / 2 - 32;
    renderer_->drawImage(static_cast<float>(left), static_cast<float>(bottom), 0, 256, 64,
                         "data/images/paused.png");
    renderer_->end2D();
}

void Game::endFrame() {
    renderer_->drawFPS();
    const int movieRate = Handles::intOf(vars_->movierecord);
    if (movieRate > 0) {
        movieAccumulator_ += frameClock_.frameSeconds();
        if (movieAccumulator_ > 1.0F / static_cast<float>(movieRate)) {
            screenshotPending_ = true;
            movieAccumulator_ = 0;
        }
    }
    if (screenshotPending_) {
        renderer_->takeScreenshot();
        screenshotPending_ = false;
    }
    // The picture of a save is what goes to the screen now: behind the swap, drivers leave in the
    // back buffer what they like. From the menus it is the one taken when they came up.
    if (savePending_ && !gui_->isVisible())
        renderer_->grabThumbnail();
    renderer_->endFrame();
    ++frameCount_;
}

void Game::gatherVisible() {
    world_.gatherVisible(renderer_->getFrustum());
    world_.sortVisible();
}

void Game::updateWorld() {
    const float dt = std::min(frameClock_.frameSeconds(), longestFrame);
    stepAccumulator_ += dt;
    particleAccumulator_ += dt;
    if (vars_->frustumcull->intValue() != 0)
        gatherVisible();
    PlayerIntent intent = gameInput_->takeIntent();
    intent.aimAt = aimedAt_;
    control_.applyFiring(*player_, intent);
    while (stepAccumulator_ >= simulationStep) {
        control_.applyMovement(*player_, intent, simulationStep);
        if (gameplay_)
            gameplay_->beforeUpdate();
        if (gameplay_)
            gameplay_->update(simulationStep);
        world_.simulate(simulationStep, vars_->gravity->floatValue());
        if (gameplay_)
            gameplay_->afterUpdate();
        stepAccumulator_ -= simulationStep;
        ++stepCount_;
        ++levelSteps_;
    }
    listen();
    while (particleAccumulator_ >= particleStep) {
        particleManager().update(particleStep, renderer_->getFrustum());
        particleAccumulator_ -= particleStep;
        ++particleStepCount_;
    }
    world_.interpolate(stepAccumulator_ / simulationStep);
}

void Game::pauseGame() {
    paused_ = true;
    frameClock_.pause();
    if (gameplay_)
        gameplay_->pause();
    sound_->playName("data/sounds/events/Off3.wav", 0, 100);
}

void Game::resumeGame() {
    paused_ = false;
    frameClock_.resume();
    if (gameplay_)
        gameplay_->resume();
    sound_->playName("data/sounds/events/On3.wav", 0, 100);
}

void Game::togglePause() {
    if (paused_)
        resumeGame();
    else
        pauseGame();
}

void Game::showMap(bool on) {
    showingMap_ = on;
    if (on && !paused_)
        pauseGame();
    else if (!on && paused_)
        resumeGame();
}

void Game::setOverlay(std::unique_ptr<OverlayEffect> overlay) {
    overlay_ = std::move(overlay);
}
void Game::endOverlay() {
    overlay_.reset();
}

void Game::startFadeIn() {
    setOverlay(SimpleFadeOverlay::fromBlack());
}

}  // namespace bc
