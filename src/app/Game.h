// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/EventPump.h"
#include "app/FrameScript.h"
#include "app/Options.h"
#include "app/SkyWiring.h"
#include "core/BasicTimer.h"
#include "gameplay/player/PlayerControl.h"
#include "input/InputManager.h"
#include "ports/IGame.h"
#include "sky/SkyManager.h"
#include "world/World.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class TiXmlElement;

namespace bc {

class BodyFactory;
class Console;
class GameInput;
class GameplayInput;
class GameVar;
class IGameplay;
class IRenderer;
class Player;
class Sound;

/// The application object: owns every subsystem, starts them in their order, runs the main loop
/// with its fixed simulation step, loads levels and saves, and draws the scene. One instance at a
/// time; everything below sees it through ports/IGame.h.
class Game final : public IGame {
  public:
    /// Seconds of one simulation step and of one particle step.
    static constexpr float simulationStep = 0.025F;
    static constexpr float particleStep = 1.0F / 120.0F;
    /// What the player sees of the frame time at most, in seconds.
    static constexpr float longestFrame = 0.25F;

    explicit Game(Options options);
    ~Game() override;
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    // Start, main loop, end.
    /// False when the game cannot start; the reason is on standard error.
    bool init();
    bool registerCommands();
    /// Builds what lies over the world once everything is up, shows the logos and runs until a
    /// quit is requested.
    void run();
    /// Writes the configuration and releases everything.
    void shutdown();
    void closeDown();
    void runFrame();
    void endFrame();
    void updateWorld();
    void tickClock();
    void setVideoMode(int width, int height, bool fullscreen);
    /// Next event of the window or of the script.
    bool pollEvent(SDL_Event& event) { return events_.poll(event); }
    /// Lets a pass of the virtual clock go by; nothing on the real one.
    void advanceClock();
    void countFrame() { ++frameCount_; }

    // Scene.
    void renderWorld();
    void drawScene(bool bloomPass);
    void drawBodies();
    void drawDebugInfo(bool bloomPass, int visibleCells, int drawnBodies);
    void updateChasePoint(float step);
    void updateAim();

    // Levels and saves.
    bool loadMap(const std::string& name, const std::string& spawnName);
    void unloadMap();
    void saveGame();
    bool loadGame(const std::string& name);

    /// Replaces the controller; the new one is given its bundle and initialised.
    void setGameplay(std::unique_ptr<IGameplay> gameplay);
    bool deleteGameplay();
    [[nodiscard]] bool isQuitting() const { return quitRequested_; }
    /// Writes key bindings and variables; path as files::replace takes it.
    bool writeConfig(const std::string& path, bool automatic);

    // What the floors below see.
    World& getWorld() override { return world_; }
    SkyManager* getSkyManager() override { return &skyManager_; }
    void requestMapLoad(const std::string& name, const std::string& spawnName) override;
    bool isMapLoadPending() const override { return mapLoadPending_; }
    const std::string& getCurrentLevel() const override { return currentLevel_; }
    bool isLevelLoaded() const override { return levelLoaded_; }
    void setWorldActive(bool active) override { worldActive_ = active; }
    void showCutscene(const std::string& name) override;
    void requestSave() override { requestSaveAs(saveName_); }
    void requestLoadGame(const std::string& name) override;
    const std::string& getSaveName() const override { return saveName_; }
    void setQuit(bool quit) override { quitRequested_ = quit; }
    void setOverlay(std::unique_ptr<OverlayEffect> overlay) override;

    IRenderer* getRenderer() { return renderer_.get(); }
    BasicTimer* getTimer() { return &frameClock_; }
    GameInput* getGameInput();
    void pauseGame();
    void resumeGame();
    void endOverlay();
    void startFadeIn();

  private:
    friend class GameDumps;

    struct Handles;

    /// What the command line put in place of a configured value.
    struct Overridden {
        GameVar* var;
        int configured;
        int inForce;
    };

    void registerLevelCommands();
    void registerSystemCommands();
    void registerPlayerCommands();
    void bindVariables();
    bool initRenderer();
    bool initFonts();
    void initGameplay();
    void initVideoMode();
    /// Sets a variable for this run only.
    void overrideSetting(const char* name, int value);
    /// Gives variables back what they had before, but for those that were changed since.
    void restoreSettings();
    void writeRunBanner();
    void loadScript();
    void runStartCommands();
    void release();
    void pumpEvents();
    void runScriptLine(const std::string& line);
    void runFramePaused();
    void listen();
    void gatherVisible();
    void togglePause();
    void showMap(bool on);
    void passScreenSize();
    void enterLevel();
    void insertPlayer();
    void restorePlayer(const TiXmlElement& node, bool revives);
    void requestSaveAs(const std::string& name);
    [[nodiscard]] Vector cameraTarget();
    [[nodiscard]] float zoom() const;

    Options options_;
    EventPump events_;
    FrameScript script_;
    std::unique_ptr<Handles> vars_;
    std::vector<Overridden> overridden_;

    std::unique_ptr<IGameplay> gameplay_;
    std::unique_ptr<Sound> sound_;
    std::unique_ptr<IRenderer> renderer_;
    std::unique_ptr<class GUIManager> gui_;
    InputManager input_;
    std::unique_ptr<Console> console_;
    std::unique_ptr<GameplayInput> gameInput_;
    PlayerControl control_;
    /// What the player aims at, from the picture drawn last.
    Vector aimedAt_;
    std::unique_ptr<Player> player_;
    std::unique_ptr<BodyFactory> bodyFactory_;
    World world_;
    ParticleSkySystems skyParticles_;
    WorldSightLine sightLine_;
    SkyManager skyManager_;
    std::unique_ptr<class GameDumps> dumps_;

    /// SDL ticks when the main loop started, for the average frame rate.
    std::uint32_t startTicks_ = 0;
    /// Buffer swaps, those of the logos included.
    std::uint32_t frameCount_ = 0;
    /// Passes of the main loop begun so far.
    std::uint32_t pass_ = 0;
    std::uint32_t stepCount_ = 0;
    std::uint32_t particleStepCount_ = 0;
    std::uint32_t levelSteps_ = 0;
    BasicTimer frameClock_;
    float stepAccumulator_ = 0;
    float particleAccumulator_ = 0;
    float movieAccumulator_ = 0;

    bool worldActive_ = false;
    bool levelLoaded_ = false;
    bool quitRequested_ = false;
    bool mapLoadPending_ = false;
    std::string pendingMapName_;
    std::string pendingSpawnName_;
    bool screenshotPending_ = false;
    std::unique_ptr<OverlayEffect> overlay_;
    std::string saveName_;
    /// In force again when what was asked for under saveName_ cannot be written or read.
    std::string lastSaveName_;
    std::string currentLevel_;
    bool loadPending_ = false;
    bool savePending_ = false;
    bool paused_ = false;
    bool shutDown_ = false;
    bool showingMap_ = false;
    bool noclip_ = false;
};

}  // namespace bc
