// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Levels: loading at once and on request, clearing, and what the player meets when one begins.
#include "app/Game.h"
#include "app/GameHandles.h"
#include "command/CommandRegistry.h"
#include "core/Log.h"
#include "gameplay/player/GameplayInput.h"
#include "gameplay/player/Player.h"
#include "gui/GUIManager.h"
#include "input/Console.h"
#include "particles/ParticleManager.h"
#include "ports/FontRenderer.h"
#include "ports/IGameplay.h"
#include "ports/IRenderer.h"
#include "world/BodyFactory.h"
#include "world/LevelLoader.h"

namespace bc {

bool Game::loadMap(const std::string& name, const std::string& spawnName) {
    const std::string path = levelPath(name);
    // Everything is read before the running level is let go.
    std::optional<LevelBodies> bodies = readLevel(*bodyFactory_, name);
    if (!bodies) {
        consolePrint("Failed to load level: " + path);
        return false;
    }
    unloadMap();
    // Leaves are split while a level is put together; in play the tree keeps its shape.
    world_.quadtree().setSplittable(true);
    renderer_->reloadTextures();
    renderer_->getFontRenderer()->init();
    particleManager().reloadTextures(*renderer_);
    placeLevel(world_, std::move(*bodies), name);
    currentLevel_ = name;
    player_->textureHandle = -1;
    insertPlayer();
    gameInput_->clearActions();
    control_.reset();
    gameplay_->startLevel(spawnName);
    enterLevel();
    world_.quadtree().setSplittable(false);
    tickClock();
    return true;
}

void Game::insertPlayer() {
    player_->autoid = 1;
    player_->updateGeometry();
    player_->computeBounds();
    world_.quadtree().insert(*player_);
    world_.addBody(player_.get(), false);
    world_.activateBody(player_.get());
}

void Game::enterLevel() {
    worldActive_ = true;
    levelLoaded_ = true;
    paused_ = false;
    mapLoadPending_ = false;
    pendingMapName_.clear();
    pendingSpawnName_.clear();
    levelSteps_ = 0;
    console_->setOpen(false);
    input_.assignTarget("game");
    gui_->setVisible(false);
}

void Game::unloadMap() {
    gameplay_->endLevel();
    player_->detachAllParticleSystems();
    world_.deleteBodies();
    world_.clear();
    particleManager().clearSystems();
    skyManager_.restartParticles();
    levelLoaded_ = false;
    worldActive_ = false;
}

void Game::requestMapLoad(const std::string& name, const std::string& spawnName) {
    pendingMapName_ = name;
    pendingSpawnName_ = spawnName;
    mapLoadPending_ = true;
    startFadeIn();
}

void Game::requestLoadGame(const std::string& name) {
    if (!loadPending_)
        lastSaveName_ = saveName_;
    saveName_ = name;
    loadPending_ = true;
    startFadeIn();
}

void Game::showCutscene(const std::string& name) {
    if (!gui_->showCutscene(name)) {
        logLine("No cutscenes can be shown: " + name);
        return;
    }
    input_.assignTarget("gui");
    gui_->setVisible(true);
    worldActive_ = false;
    console_->setOpen(false);
}

}  // namespace bc
