// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/BasicTimer.h"
#include "core/IGameplay.h"

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace bc {

class GameHUD;
class GameVar;
class Player;
struct GameBodyType;

/// The rules of play: level start and end, the step of every body, spawn points, the level and race
/// clocks, the gib budget and the developer commands. One exists, owned by the application.
class DefaultGameplay final : public IGameplay {
  public:
    /// enemyTypes: the body types of the floor above, registered in their place among the game's
    /// own (GameBodyFactory). The span must outlive the controller.
    explicit DefaultGameplay(std::span<const GameBodyType> enemyTypes = {});
    ~DefaultGameplay() override;

    bool init(std::unique_ptr<GameResourceBundle> bundle) override;
    bool shutdown() override;
    std::unique_ptr<Body> createBody(const std::string& typeName) override;
    GameBodyFactory* getFactory() override { return factory_.get(); }
    void beforeUpdate() override {}
    void update(float dt) override;
    void afterUpdate() override {}
    void startLevel(const std::string& spawnName) override;
    void endLevel() override;
    void draw() override;
    void drawHud(IRenderer& renderer, float dt) override;
    SpawnPoint* nearestSpawnPoint(const Body& body) override;
    SpawnPoint* startSpawnPoint() override;
    std::unique_ptr<InputTarget> createInputTarget() override;
    void setScreenSize(int width, int height) override;
    void saveGameplayState(TiXmlElement& node) override;
    void loadGameplayState(const TiXmlElement& node) override;
    void beforeSave() override;
    void tickClock() override;
    void pause() override;
    void resume() override;
    void resetPlayerProgress() override;
    SpawnPoint* findSpawnPoint(const std::string& id) override;
    void reserveGibs(int& count) override;

    /// Gives a gib's unit back to the budget.
    void returnGib();
    [[nodiscard]] int gibCount() const { return gibCount_; }
    [[nodiscard]] Player* player() const { return player_; }
    /// The player's body goes: called by itself.
    void forgetPlayer();

    // The running race. The bodies of the course drive it; the clock stands still, at the last
    // race's time, while none runs.
    [[nodiscard]] bool isRaceActive() const { return raceActive_; }
    /// Milliseconds.
    [[nodiscard]] float raceTime() const { return raceClock_.elapsed(); }
    /// Starts from zero; goals and blocks of an earlier race count for nothing any more.
    void raceStart();
    /// Shows the time so far; nothing while no race runs.
    void raceCheckpoint();
    /// Ends the race and shows its time; the clock stops in any case.
    void raceFinish();
    /// Calls the race off and puts every block back.
    void raceReset();

  private:
    void carryPlayerOver();
    void placePlayer(const std::string& spawnName);

    std::span<const GameBodyType> enemyTypes_;
    std::unique_ptr<GameBodyFactory> factory_;
    std::unique_ptr<GameHUD> hud_;
    std::vector<SpawnPoint*> spawnPoints_;
    Player* player_ = nullptr;
    GameVar* drawTimerVar_ = nullptr;
    GameVar* maxGibsVar_ = nullptr;
    int screenWidth_ = 0;
    int screenHeight_ = 0;
    int gibCount_ = 0;
    /// A save was read: its clocks stay in force at the next level start.
    bool stateLoaded_ = false;
    /// Level time of the level that ended last, until the next one starts (ms).
    float endedLevelTime_ = 0;
    bool raceActive_ = false;
    BasicTimer raceClock_;
};

}  // namespace bc
