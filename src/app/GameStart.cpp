// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Start-up in its order, the main loop's frame around the passes, and the end.
#include "app/Game.h"
#include "app/GameDumps.h"
#include "app/GameHandles.h"
#include "app/GameLogoScene.h"
#include "command/CommandRegistry.h"
#include "core/Log.h"
#include "core/Text.h"
#include "core/Ticks.h"
#include "gameplay/player/GameplayInput.h"
#include "gameplay/player/Player.h"
#include "gameplay/rules/DefaultGameplay.h"
#include "gameplay/rules/GameBodyFactory.h"
#include "gui/GUIManager.h"
#include "hud/OverlayEffect.h"
#include "input/Console.h"
#include "particles/ParticleManager.h"
#include "ports/GameResourceBundle.h"
#include "ports/IGameplay.h"
#include "ports/IRenderer.h"
#include "ports/ISound.h"
#include "render/HeadlessRenderer.h"
#include "render/ImageFontRenderer.h"
#include "render/Renderer.h"
#include "resources/FileSystem.h"
#include "resources/ResourceManager.h"
#include "sound/HeadlessSound.h"
#include "sound/Sound.h"
#include "world/BodyFactory.h"

#include <SDL/SDL.h>

#include <cstdio>

namespace bc {

namespace {

constexpr const char* firstLevel = "hangar";
// The player's box in world units, and its mass.
constexpr float playerSize = 16;
constexpr float playerMass = 100;

bool startsAMap(const std::string& command) {
    return command == "map" || command.rfind("map ", 0) == 0 || command.rfind("loadgame", 0) == 0;
}

}  // namespace

Game::Game(Options options)
    : options_(std::move(options)),
      events_(!options_.headless),
      vars_(std::make_unique<Handles>()),
      sightLine_(world_) {
    if (options_.headless) {
        sound_ = std::make_unique<HeadlessSound>();
        renderer_ = std::make_unique<HeadlessRenderer>();
    } else {
        sound_ = std::make_unique<Sound>();
        renderer_ = std::make_unique<Renderer>();
    }
    renderer_->setFontRenderer(std::make_unique<ImageFontRenderer>());
    gui_ = std::make_unique<GUIManager>();
    gui_->setVisible(true);
    console_ = std::make_unique<Console>();
    dumps_ = std::make_unique<GameDumps>(*this);
    commands().setOutput(console_.get());
    skyManager_.setServices(&skyParticles_, &sightLine_);
    gui_->setInputManager(&input_);
}

Game::~Game() {
    // A start that failed must not overwrite the settings: they may not even have been read.
    if (shutDown_)
        return;
    release();
    if (!options_.headless)
        SDL_Quit();
}

GameInput* Game::getGameInput() {
    return gameInput_.get();
}

bool Game::init() {
    logLine("======== GAME INIT ========");
    commands().registerBuiltinCommands();
    vars().registerBuiltinCommands();
    vars().loadDeclarations("data/gamevars.xml");
    input_.loadKeymap("data/keymaps.xml");
    input_.init(this, renderer_.get(), gui_.get(), console_.get());
    input_.registerTarget("gui", gui_.get());
    input_.registerTarget("console", console_.get());
    input_.setTarget("gui");
    if (!initRenderer())
        return false;
    initGameplay();
    registerCommands();
    initVideoMode();
    console_->init(this);
    passScreenSize();
    sound_->init();
    sound_->loadSoundDefs("data/sounds/sounds.xml");
    frameClock_.restart();
    particleManager().makeDefaultDefinition();
    particleManager().loadDefinitions("data/particles/particles.xml");
    particleManager().reloadTextures(*renderer_);
    skyManager_.init();
    if (!initFonts())
        return false;
    writeRunBanner();
    if (GameVar* movie = vars().findVar("movierecord"))
        movie->setInt(0);
    sound_->startPlaylist("");
    return true;
}

bool Game::initRenderer() {
    if (renderer_->init())
        return true;
    std::fprintf(stderr, "brightclash: no window with OpenGL could be opened: %s\n",
                 SDL_GetError());
    SDL_Quit();
    return false;
}

bool Game::initFonts() {
    FontRenderer& fonts = *renderer_->getFontRenderer();
    fonts.setRenderer(renderer_.get());
    if (fonts.init())
        return true;
    logLine("Error Initialising font renderer");
    std::fprintf(stderr, "brightclash: the fonts under %s/data/fonts cannot be read\n",
                 files::dataFolder().c_str());
    return false;
}

void Game::initGameplay() {
    setGameplay(std::make_unique<DefaultGameplay>());
    gameInput_ = gameplay_->createInputTarget();
    gameInput_->setRenderer(renderer_.get());
    gameInput_->init();
    input_.registerTarget("game", gameInput_.get());
    bodyFactory_ = std::make_unique<BodyFactory>();
    bodyFactory_->registerDefaults();
    bodyFactory_->setFallback(gameplay_->getFactory());
    control_.init();
    player_ = gameplay_->createPlayer();
    player_->autoid = 1;
    player_->makeBox(playerSize, playerSize);
    player_->mass = playerMass;
    player_->invMass = 1 / playerMass;
    player_->computeBounds();
    world_.setPlayer(player_.get());
}

void Game::writeRunBanner() {
    const GameVar* record = vars().findVar("recordleveltimes");
    if (record == nullptr || record->intValue() <= 0)
        return;
    files::append("leveltimes.txt",
                  "\n\n===============================\n New Run \n"
                  "===============================\n");
}

void Game::loadScript() {
    if (options_.scriptFile.empty())
        return;
    std::string error;
    if (script_.load(options_.scriptFile, error))
        return;
    const std::string message = "Script " + options_.scriptFile + ": " + error;
    logLine(message);
    std::fprintf(stderr, "brightclash: %s\n", message.c_str());
}

void Game::run() {
    startTicks_ = ticks();
    loadScript();
    if (!options_.skipLogo)
        GameLogoScene(*this).run();
    if (!quitRequested_)
        runStartCommands();
    for (pass_ = 0; !quitRequested_; ++pass_) {
        if (options_.frames && pass_ >= *options_.frames)
            break;
        advanceClock();
        script_.runDue(pass_, [this](const std::string& line) { runScriptLine(line); });
        pumpEvents();
        if (!quitRequested_)
            runFrame();
    }
}

void Game::runStartCommands() {
    bool mapGiven = false;
    for (const std::string& command : options_.commands) {
        mapGiven = mapGiven || startsAMap(command);
        commands().execute(command);
    }
    if (!mapGiven)
        commands().execute(std::string("map ") + firstLevel);
}

void Game::setGameplay(std::unique_ptr<IGameplay> gameplay) {
    deleteGameplay();
    gameplay_ = std::move(gameplay);
    auto bundle = std::make_unique<GameResourceBundle>();
    bundle->game = this;
    bundle->sound = sound_.get();
    bundle->renderer = renderer_.get();
    bundle->timer = &frameClock_;
    gameplay_->setScreenSize(renderer_->getWidth(), renderer_->getHeight());
    gameplay_->init(std::move(bundle));
}

bool Game::deleteGameplay() {
    if (!gameplay_)
        return true;
    gameplay_->shutdown();
    gameplay_.reset();
    return false;
}

void Game::shutdown() {
    restoreSettings();
    writeConfig("data/config.txt", true);
    release();
}

void Game::release() {
    // Bodies look at the controller while they go, so they go first.
    skyManager_.unloadAll();
    world_.deleteBodies();
    world_.clear();
    deleteGameplay();
    sound_->shutdown();
    commands().setOutput(nullptr);
    gui_.reset();
    particleManager().clear();
    renderer_.reset();
    console_.reset();
    sound_.reset();
    world_.setPlayer(nullptr);
    player_.reset();
    gameInput_.reset();
    bodyFactory_.reset();
    resourceManager().release();
    commands().clearCommands();
    vars().clearVars();
    shutDown_ = true;
}

void Game::closeDown() {
    if (!options_.headless)
        SDL_WM_GrabInput(SDL_GRAB_OFF);
    const float seconds = static_cast<float>(ticks() - startTicks_) / 1000.0F;
    if (!options_.headless) {
        SDL_CloseAudio();
        SDL_Quit();
    }
    const float frames = static_cast<float>(frameCount_);
    logLine("AVG FPS:" + formatFloat(seconds > 0 ? frames / seconds : 0));
    setQuit(true);
}

}  // namespace bc
