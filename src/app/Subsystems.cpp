// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/Subsystems.h"

#include "command/CommandRegistry.h"
#include "command/GameVar.h"
#include "gameplay/player/GameplayInput.h"
#include "gameplay/player/Player.h"
#include "gameplay/rules/DefaultGameplay.h"
#include "gameplay/rules/GameBodyFactory.h"
#include "gui/GUIManager.h"
#include "input/Console.h"
#include "particles/ParticleManager.h"
#include "ports/GameResourceBundle.h"
#include "render/HeadlessRenderer.h"
#include "render/ImageFontRenderer.h"
#include "render/Renderer.h"
#include "resources/ResourceManager.h"
#include "sound/HeadlessSound.h"
#include "sound/Sound.h"
#include "world/BodyFactory.h"

namespace bc {

namespace {

/// Side of the craft's square in world units.
constexpr float playerSize = 16;
/// In the unit of level files, whose crates have 10 to 120.
constexpr float playerMass = 100;

}  // namespace

Subsystems::Subsystems(bool headless) : sightLine_(world_) {
    if (headless) {
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
    commands().setOutput(console_.get());
    sky_.setServices(&skyParticles_, &sightLine_);
    gui_->setInputManager(&input_);
}

Subsystems::~Subsystems() {
    release();
}

void Subsystems::createPlay(IGame& game) {
    setGameplay(std::make_unique<DefaultGameplay>(), game);
    gameInput_ = gameplay_->createInputTarget();
    gameInput_->setRenderer(renderer_.get());
    gameInput_->init();
    input_.registerTarget("game", gameInput_.get());
    bodyFactory_ = std::make_unique<BodyFactory>();
    bodyFactory_->registerDefaults();
    bodyFactory_->setFallback(gameplay_->getFactory());
    control_.init();
    player_ = gameplay_->createPlayer();
    player_->autoid = World::playerId;
    player_->makeBox(playerSize, playerSize);
    player_->mass = playerMass;
    player_->invMass = 1 / playerMass;
    player_->computeBounds();
    world_.setPlayer(player_.get());
}

void Subsystems::setGameplay(std::unique_ptr<IGameplay> gameplay, IGame& game) {
    gameplay_ = std::move(gameplay);
    auto bundle = std::make_unique<GameResourceBundle>();
    bundle->game = &game;
    bundle->sound = sound_.get();
    bundle->renderer = renderer_.get();
    bundle->timer = &frameClock_;
    gameplay_->setScreenSize(renderer_->getWidth(), renderer_->getHeight());
    gameplay_->init(std::move(bundle));
}

void Subsystems::deleteGameplay() {
    if (!gameplay_)
        return;
    gameplay_->shutdown();
    gameplay_.reset();
}

void Subsystems::release() {
    if (isReleased_)
        return;
    isReleased_ = true;
    // Bodies ask the controller while they go, so they go first.
    sky_.unloadAll();
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
}

}  // namespace bc
