// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/LevelSession.h"

#include "app/Pause.h"
#include "app/ScreenOverlay.h"
#include "app/Stepper.h"
#include "app/Subsystems.h"
#include "command/CommandRegistry.h"
#include "core/Log.h"
#include "gameplay/player/Player.h"
#include "gui/GUIManager.h"
#include "input/Console.h"
#include "particles/ParticleManager.h"
#include "ports/FontRenderer.h"
#include "ports/IGameplay.h"
#include "ports/IRenderer.h"
#include "world/BodyFactory.h"
#include "world/LevelLoader.h"

#include <utility>

namespace bc {

void LevelSession::registerCommands() {
    CommandRegistry& c = commands();
    c.registerCommand("load a map", "map", [this] { loadMap(commands().arg(0, "test.xml"), ""); });
    c.registerCommand("unload a map", "unmap", [this] { unloadMap(); });
}

bool LevelSession::loadMap(const std::string& name, const std::string& spawnName) {
    const std::string path = levelPath(name);
    // Everything is read before the running level is let go.
    std::optional<LevelBodies> bodies = readLevel(subsystems_.bodyFactory(), name);
    if (!bodies) {
        consolePrint("Failed to load level: " + path);
        return false;
    }
    unloadMap();
    World& world = subsystems_.world();
    IRenderer& renderer = subsystems_.renderer();
    // Leaves are split while a level is put together; in play the tree keeps its shape.
    world.quadtree().setSplittable(true);
    renderer.reloadTextures();
    renderer.getFontRenderer()->init();
    particleManager().reloadTextures(renderer);
    placeLevel(world, std::move(*bodies), name);
    subsystems_.player().textureHandle = -1;
    startLevel(name, spawnName);
    enterLevel();
    world.quadtree().setSplittable(false);
    subsystems_.frameClock().tick();
    return true;
}

void LevelSession::startLevel(const std::string& name, const std::string& spawnName) {
    currentLevel_ = name;
    insertPlayer();
    stepper_.beginLevel();
    subsystems_.gameplay().startLevel(spawnName);
}

void LevelSession::insertPlayer() {
    World& world = subsystems_.world();
    Player& player = subsystems_.player();
    player.autoid = World::playerId;
    player.updateGeometry();
    player.computeBounds();
    world.quadtree().insert(player);
    world.addBody(&player, false);
    world.activateBody(&player);
}

void LevelSession::enterLevel() {
    worldActive_ = true;
    levelLoaded_ = true;
    pause_.clear();
    mapLoadPending_ = false;
    pendingMapName_.clear();
    pendingSpawnName_.clear();
    subsystems_.console().setOpen(false);
    subsystems_.input().assignTarget("game");
    subsystems_.gui().setVisible(false);
}

void LevelSession::unloadMap() {
    World& world = subsystems_.world();
    subsystems_.gameplay().endLevel();
    subsystems_.player().detachAllParticleSystems();
    world.deleteBodies();
    world.clear();
    particleManager().clearSystems();
    subsystems_.sky().restartParticles();
    levelLoaded_ = false;
    worldActive_ = false;
}

void LevelSession::requestMapLoad(const std::string& name, const std::string& spawnName) {
    pendingMapName_ = name;
    pendingSpawnName_ = spawnName;
    mapLoadPending_ = true;
    overlay_.startFadeIn();
}

bool LevelSession::loadRequestedMap() {
    if (!std::exchange(mapLoadPending_, false))
        return false;
    const std::string map = std::exchange(pendingMapName_, {});
    const std::string spawn = std::exchange(pendingSpawnName_, {});
    loadMap(map, spawn);
    return true;
}

void LevelSession::showCutscene(const std::string& name) {
    if (!subsystems_.gui().showCutscene(name)) {
        logLine("No cutscenes can be shown: " + name);
        return;
    }
    subsystems_.input().assignTarget("gui");
    subsystems_.gui().setVisible(true);
    worldActive_ = false;
    subsystems_.console().setOpen(false);
}

}  // namespace bc
