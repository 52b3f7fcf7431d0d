// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

namespace bc {

class Body;
class BodyFactory;
class Console;
class IGameplay;
class IGUI;
class InputManager;
class GameInput;
class IRenderer;
class ISound;
class OverlayEffect;
class SkyManager;
class World;
struct BasicTimer;

/// Where the subsystems are. None of the pointers passes ownership; a subsystem that does not
/// exist yet (or any more) is null.
class Subsystems {
  public:
    virtual ~Subsystems() = default;
    virtual ISound* getSound() = 0;
    virtual IRenderer* getRenderer() = 0;
    virtual InputManager* getInputManager() = 0;
    virtual IGUI* getGUIManager() = 0;
    virtual Console* getConsole() = 0;
    virtual GameInput* getGameInput() = 0;
    /// The frame clock.
    virtual BasicTimer* getTimer() = 0;
    virtual SkyManager* getSkyManager() = 0;
    virtual Body* getPlayer() = 0;
    virtual void setPlayer(Body* player) = 0;
    virtual BodyFactory* getBodyFactory() = 0;
    virtual IGameplay* getGameplay() = 0;
    /// The level's bodies, their lists and the spatial index.
    virtual World& getWorld() = 0;
};

/// What can be asked of the application; requests are carried out later in the main loop.
class GameRequests {
  public:
    virtual ~GameRequests() = default;
    /// Loads at the next pass of the main loop in which a level is active, behind a fade.
    virtual void requestMapLoad(const std::string& name, const std::string& spawnName) = 0;
    virtual bool isMapLoadPending() const = 0;
    /// Saves under saveName right after the next buffer swap.
    virtual void requestSave() = 0;
    virtual void requestLoadGame(const std::string& name) = 0;
    virtual void showCutscene(const std::string& name) = 0;
    virtual void pauseGame() = 0;
    virtual void resumeGame() = 0;
    virtual void setQuit(bool quit) = 0;
    virtual const std::string& getCurrentLevel() const = 0;
    virtual const std::string& getSaveName() const = 0;
    virtual void setSaveName(const std::string& name) = 0;
    virtual bool isLevelLoaded() const = 0;
    virtual bool isWorldActive() const = 0;
    virtual void setWorldActive(bool active) = 0;
    virtual bool isPaused() const = 0;
    /// Replaces the full-screen overlay effect.
    virtual void setOverlay(std::unique_ptr<OverlayEffect> overlay) = 0;
    virtual void endOverlay() = 0;
    virtual void startFadeIn() = 0;
};

/// The application object as everything below it sees it.
class IGame : public Subsystems, public GameRequests {};

}  // namespace bc
