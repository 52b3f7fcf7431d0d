// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

namespace bc {

class OverlayEffect;
class SkyManager;
class World;

/// Where the level takes place. The caller owns neither object.
class LevelPlace {
  public:
    virtual ~LevelPlace() = default;
    /// The level's bodies, their lists and the spatial index.
    virtual World& getWorld() = 0;
    /// Null where there are no skies.
    virtual SkyManager* getSkyManager() = 0;
};

/// Which level runs, and requests for another one.
class LevelRequests {
  public:
    virtual ~LevelRequests() = default;
    /// Loads the level at the next pass of the main loop in which a level is active, and fades in
    /// from black. spawnName: the start point, empty for the level's own. A level that cannot be
    /// read leaves the running one and a line on the console.
    virtual void requestMapLoad(const std::string& name, const std::string& spawnName) = 0;
    virtual bool isMapLoadPending() const = 0;
    /// Name of the level that was loaded last; empty before the first.
    virtual const std::string& getCurrentLevel() const = 0;
    virtual bool isLevelLoaded() const = 0;
    /// An inactive world is neither simulated nor drawn, and requests wait.
    virtual void setWorldActive(bool active) = 0;
    /// Shows a cutscene and makes the world inactive meanwhile. One that cannot be shown is a log
    /// line.
    virtual void showCutscene(const std::string& name) = 0;
};

/// Requests for saved games.
class SaveRequests {
  public:
    virtual ~SaveRequests() = default;
    /// Saves under getSaveName right after the next buffer swap.
    virtual void requestSave() = 0;
    /// Loads the save as requestMapLoad loads a level; its name is getSaveName from now on.
    virtual void requestLoadGame(const std::string& name) = 0;
    /// Name of the save that was written, read or requested last; empty before the first.
    virtual const std::string& getSaveName() const = 0;
};

/// The application object as the floors below it see it. Who needs one role takes that one.
class IGame : public LevelPlace, public LevelRequests, public SaveRequests {
  public:
    /// True: the main loop ends before its next pass.
    virtual void setQuit(bool quit) = 0;
    /// Replaces the full-screen overlay effect; it is deleted when it is no longer active.
    virtual void setOverlay(std::unique_ptr<OverlayEffect> overlay) = 0;
};

}  // namespace bc
