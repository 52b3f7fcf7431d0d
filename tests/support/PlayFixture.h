// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "command/CommandRegistry.h"
#include "command/ConsoleOutput.h"
#include "command/GameVar.h"
#include "core/BasicTimer.h"
#include "core/Random.h"
#include "core/Ticks.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Spawning.h"
#include "gameplay/player/GameplayInput.h"
#include "gameplay/player/Player.h"
#include "gameplay/player/PlayerControl.h"
#include "gameplay/rules/DefaultGameplay.h"
#include "hud/OverlayEffect.h"
#include "particles/ParticleManager.h"
#include "ports/GameResourceBundle.h"
#include "ports/IGame.h"
#include "support/FakeSound.h"
#include "support/Places.h"
#include "support/TestFolders.h"
#include "world/World.h"

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace bc::test {

/// The application as play sees it: a real world, and requests that are noted instead of done.
class FakePlayGame final : public IGame {
  public:
    World world;
    FakeSound sound;
    BasicTimer timer;
    SkyManager* sky = nullptr;
    std::unique_ptr<OverlayEffect> overlay;
    int overlays = 0;
    int saveRequests = 0;
    std::vector<std::string> loadRequests;
    std::vector<std::string> mapRequests;
    std::vector<std::string> cutscenes;
    std::string level = "testlevel";
    std::string saveName;
    bool mapLoadPending = false;

    World& getWorld() override { return world; }
    SkyManager* getSkyManager() override { return sky; }
    void requestMapLoad(const std::string& name, const std::string& spawn) override {
        mapRequests.push_back(name + '@' + spawn);
    }
    bool isMapLoadPending() const override { return mapLoadPending; }
    const std::string& getCurrentLevel() const override { return level; }
    bool isLevelLoaded() const override { return true; }
    void setWorldActive(bool) override {}
    void showCutscene(const std::string& name) override { cutscenes.push_back(name); }
    void requestSave() override { ++saveRequests; }
    void requestLoadGame(const std::string& name) override { loadRequests.push_back(name); }
    const std::string& getSaveName() const override { return saveName; }
    void setQuit(bool) override {}
    void setOverlay(std::unique_ptr<OverlayEffect> effect) override {
        overlay = std::move(effect);
        ++overlays;
    }
};

/// Lines that play writes to the console.
class ConsoleLines final : public ConsoleOutput {
  public:
    std::vector<std::string> lines;
    void print(std::string_view text) override { lines.emplace_back(text); }
    void printColoured(std::string_view text, int, int, int, int) override { print(text); }
    void printWarning(std::string_view text) override { print(text); }
    void printDebug(std::string_view text) override { print(text); }
};

/// A world of 2000 x 2000 around the origin with the player in its middle and a level running, on
/// a virtual clock. No gravity, difficulty normal.
class PlayFixture : public TestFolders {
  protected:
    static constexpr float dt = 0.025F;
    static constexpr int stepMs = 25;

    PlayFixture() {
        useVirtualTicks(1000);
        seedRandom(1);
        for (const auto& [name, value] :
             std::initializer_list<std::pair<const char*, const char*>>{{"difficulty", "3"},
                                                                        {"maxgibs", "10"},
                                                                        {"drawtimer", "0"},
                                                                        {"movemode", "1"},
                                                                        {"sensitivity", "1"}})
            vars().createOrSet(name, value, "");
        commands().setOutput(&console);
        particleManager().makeDefaultDefinition();
        put(data() + "/particles.xml",
            get(test::sourcePath("assets/data/particles/particles.xml")));
        logOf([] { particleManager().loadDefinitions("particles.xml"); });
        gameplay = std::make_unique<DefaultGameplay>();
        auto bundle = std::make_unique<GameResourceBundle>();
        bundle->game = &game;
        bundle->sound = &game.sound;
        bundle->timer = &game.timer;
        gameplay->setScreenSize(1024, 768);
        logOf([&] { gameplay->init(std::move(bundle)); });
        input.init();
        control.init();
        input.clearActions();
        player_ = gameplay->createPlayer();
        player = player_.get();
        player->autoid = World::playerId;
        player->makeBox(16, 16);
        player->computeBounds();
        game.world.setPlayer(player);
        game.world.quadtree().init(Vector(), 2000, 2);
        startLevel();
    }
    ~PlayFixture() override {
        game.world.clear();
        game.world.setPlayer(nullptr);
        player_.reset();
        logOf([this] { gameplay->shutdown(); });
        gameplay.reset();
        particleManager().clear();
        commands().clearCommands();
        commands().setOutput(nullptr);
        vars().clearVars();
        useRealTicks();
    }

    /// Puts the player into the world's lists and begins the level.
    void startLevel(const std::string& spawn = {}) {
        World& world = game.world;
        world.quadtree().insert(*player);
        world.addBody(player, false);
        world.activateBody(player);
        input.clearActions();
        control.reset();
        game.timer.restart();
        gameplay->startLevel(spawn);
    }
    /// Lets go of the level as the application does.
    void endLevel() {
        gameplay->endLevel();
        player->detachAllParticleSystems();
        game.world.clear();
        game.world.quadtree().init(Vector(), 2000, 2);
        particleManager().clearSystems();
    }
    /// Simulation steps, one a frame of 25 ms.
    void step(int count = 1) {
        for (int i = 0; i < count; ++i) {
            advanceVirtualTicks(stepMs);
            game.timer.tick();
            PlayerIntent intent = input.takeIntent();
            // Tests set the aim and the cursor's place in the world themselves.
            intent.aim = player->aim;
            intent.aimAt = player->mouseWorldPos;
            control.applyFiring(*player, intent);
            control.applyMovement(*player, intent, dt);
            gameplay->update(dt);
            game.world.simulate(dt, gravity);
            game.world.interpolate(1);
        }
    }
    void stepMsecs(int ms) { step(ms / stepMs); }

    /// A body as levels have them: at a place, in the world, its hooks called.
    template <class T>
    T* add(std::unique_ptr<T> body, const Vector& position) {
        if (body->localVertices.empty())
            body->makeBox(16, 16);
        T* placed = spawnAt(std::move(body), position);
        placed->onBeforeTargets();
        placed->onLoaded();
        placed->onSpawned();
        placed->onAfterLoad();
        return placed;
    }
    template <class T>
    T* add(const Vector& position) {
        return add(std::make_unique<T>(), position);
    }
    /// Something to shoot at: floats, takes damage.
    GameBody* addTarget(const Vector& position, std::uint32_t side = team::enemy) {
        auto body = std::make_unique<GameBody>();
        body->takesDamage = true;
        body->showDamage = false;
        body->gravitymultiplier = 0;
        body->team.set(side);
        body->health = body->initialHealth = 1000;
        return add(std::move(body), position);
    }
    /// Level geometry.
    Body* addWall(const Vector& centre, float width, float height) {
        auto body = std::make_unique<Body>();
        body->mass = body->invMass = 0;
        body->makeBox(width, height);
        return add(std::move(body), centre);
    }
    void run(const std::string& line) { commands().execute(line); }
    [[nodiscard]] int bodiesOfType(const std::string& type) const {
        int count = 0;
        for (const Body* body : game.world.allBodies())
            count += body->type == type ? 1 : 0;
        return count;
    }
    [[nodiscard]] static int systemsOf(std::string_view name) {
        int count = 0;
        for (const auto& system : particleManager().systems())
            count += system->definitionId() == name && system->isEmitting() ? 1 : 0;
        return count;
    }

    FakePlayGame game;
    ConsoleLines console;
    std::unique_ptr<DefaultGameplay> gameplay;
    GameplayInput input;
    PlayerControl control;
    Player* player = nullptr;
    float gravity = 0;

  private:
    std::unique_ptr<Player> player_;
};

}  // namespace bc::test
