// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace bc {

class Pause;
class ScreenOverlay;
class Stepper;
class Subsystems;

/// Which level runs: loading it at once or on request, clearing it, and the cutscenes between
/// levels. Level names are those of files in maps/, with or without ".xml".
class LevelSession {
  public:
    /// All outlive the object.
    LevelSession(Subsystems& subsystems, Stepper& stepper, Pause& pause, ScreenOverlay& overlay)
        : subsystems_(subsystems), stepper_(stepper), pause_(pause), overlay_(overlay) {}

    /// map and unmap.
    void registerCommands();
    /// Loads a level at once. spawnName: the start point, empty for the level's own. False, with a
    /// line on the console, when it cannot be read; the running level stays then.
    bool loadMap(const std::string& name, const std::string& spawnName);
    /// Ends the level: every body but the player goes.
    void unloadMap();
    void requestMapLoad(const std::string& name, const std::string& spawnName);
    /// Carries out the request, if there is one; a level that cannot be read ends it as well.
    /// False when there was none.
    bool loadRequestedMap();
    void showCutscene(const std::string& name);
    void setWorldActive(bool active) { worldActive_ = active; }

    // The second half of every load, when the bodies are in the world.
    /// Brings the player in and starts the clocks and rules of the level.
    void startLevel(const std::string& name, const std::string& spawnName);
    /// Hands the keys to play. From here on the level is the running one, and no request for
    /// another is pending.
    void enterLevel();

    [[nodiscard]] bool isMapLoadPending() const { return mapLoadPending_; }
    [[nodiscard]] const std::string& pendingMap() const { return pendingMapName_; }
    [[nodiscard]] const std::string& pendingSpawn() const { return pendingSpawnName_; }
    /// The level started last, also after it was cleared.
    [[nodiscard]] const std::string& getCurrentLevel() const { return currentLevel_; }
    [[nodiscard]] bool isLevelLoaded() const { return levelLoaded_; }
    /// False while menus or a cutscene cover the world, which stands still then.
    [[nodiscard]] bool isWorldActive() const { return worldActive_; }
    /// A level is simulated and drawn.
    [[nodiscard]] bool isRunning() const { return levelLoaded_ && worldActive_; }

  private:
    void insertPlayer();

    Subsystems& subsystems_;
    Stepper& stepper_;
    Pause& pause_;
    ScreenOverlay& overlay_;
    bool worldActive_ = false;
    bool levelLoaded_ = false;
    std::string currentLevel_;
    bool mapLoadPending_ = false;
    std::string pendingMapName_;
    std::string pendingSpawnName_;
};

}  // namespace bc
