// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppVariables.h"
#include "app/EventPump.h"
#include "app/EventRouter.h"
#include "app/FrameLoop.h"
#include "app/IntentSource.h"
#include "app/LevelSession.h"
#include "app/Options.h"
#include "app/PassClock.h"
#include "app/Pause.h"
#include "app/PlayerCommands.h"
#include "app/Presenter.h"
#include "app/SaveGames.h"
#include "app/Scene.h"
#include "app/ScreenOverlay.h"
#include "app/ScriptRunner.h"
#include "app/Startup.h"
#include "app/StateDumps.h"
#include "app/Stepper.h"
#include "app/Subsystems.h"
#include "app/VideoModes.h"
#include "app/WorldQueries.h"
#include "ports/IGame.h"

#include <memory>
#include <string>

namespace bc {

/// The application object: owns the subsystems and the parts that drive them, starts and ends them
/// in their order, and is what the floors below see of the application. One at a time.
class Game final : public IGame {
  public:
    explicit Game(Options options);
    ~Game() override;
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    // In this order, the last three only after init has succeeded.
    /// False when the game cannot start; the reason is on standard error.
    bool init();
    /// Shows the logos and runs until a quit is requested.
    void run();
    /// Writes the configuration and releases the subsystems.
    void shutdown();
    /// Lets go of SDL.
    void closeDown();

    World& getWorld() override { return subsystems_.world(); }
    SkyManager* getSkyManager() override { return &subsystems_.sky(); }
    void requestMapLoad(const std::string& name, const std::string& spawnName) override {
        levels_.requestMapLoad(name, spawnName);
    }
    bool isMapLoadPending() const override { return levels_.isMapLoadPending(); }
    const std::string& getCurrentLevel() const override { return levels_.getCurrentLevel(); }
    bool isLevelLoaded() const override { return levels_.isLevelLoaded(); }
    void setWorldActive(bool active) override { levels_.setWorldActive(active); }
    void showCutscene(const std::string& name) override { levels_.showCutscene(name); }
    void requestSave() override { saves_.requestSave(); }
    void requestLoadGame(const std::string& name) override { saves_.requestLoadGame(name); }
    const std::string& getSaveName() const override { return saves_.getSaveName(); }
    void setQuit(bool quit) override { router_.setQuit(quit); }
    void setOverlay(std::unique_ptr<OverlayEffect> overlay) override;

  private:
    void registerCommands();

    // In the order in which they need each other.
    Options options_;
    Subsystems subsystems_;
    AppVariables variables_;
    PassClock clock_;
    EventPump pump_;
    EventRouter router_;
    ScriptRunner script_;
    VideoModes modes_;
    Startup startup_;
    Presenter presenter_;
    ScreenOverlay overlay_;
    Pause pause_;
    IntentSource intents_;
    Stepper stepper_;
    Scene scene_;
    LevelSession levels_;
    SaveGames saves_;
    PlayerCommands playerCommands_;
    FrameLoop loop_;
    StateDumps dumps_;
    WorldQueries queries_;
};

}  // namespace bc
