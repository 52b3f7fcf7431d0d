// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/Race.h"
#include "gameplay/actors/Rules.h"
#include "ports/IGameplay.h"

#include <memory>
#include <string>
#include <vector>

namespace bc {

class GameHUD;
class GameVar;
class SpawnPoint;

/// The rules of play: level start and end, the step of every body, spawn points, the level and race
/// clocks, the gib budget and the developer commands. One exists, owned by the application.
class DefaultGameplay final : public IGameplay, public Rules {
  public:
    DefaultGameplay();
    ~DefaultGameplay() override;

    bool init(std::unique_ptr<GameResourceBundle> bundle) override;
    bool shutdown() override;
    std::unique_ptr<Body> createBody(const std::string& typeName) override;
    std::unique_ptr<Player> createPlayer() override;
    GameBodyFactory* getFactory() override { return factory_.get(); }
    void beforeUpdate() override {}
    void update(float dt) override;
    void afterUpdate() override {}
    void startLevel(const std::string& spawnName) override;
    void endLevel() override;
    void draw() override;
    void drawHud(IRenderer& renderer, float dt) override;
    SpawnPoint* nearestSpawnPoint(const Body& body);
    SpawnPoint* startSpawnPoint();
    std::unique_ptr<GameplayInput> createInputTarget() override;
    void setScreenSize(int width, int height) override;
    void saveGameplayState(TiXmlElement& node) override;
    void loadGameplayState(const TiXmlElement& node) override;
    void beforeSave() override;
    void tickClock() override;
    void pause() override;
    void resume() override;
    void resetPlayerProgress();
    SpawnPoint* findSpawnPoint(const std::string& id);
    void reserveGibs(int& count) override;

    void returnGib() override;
    void launchGib(const Vector& position) override;
    void floatText(const Vector& position, std::string_view text, int size, bool shadow,
                   float scale, const std::string& font) override;
    Race& race() override { return race_; }
    [[nodiscard]] int gibCount() const override { return gibCount_; }
    [[nodiscard]] const Race& race() const { return race_; }

  private:
    void carryPlayerOver();
    void placePlayer(class Player& player, const std::string& spawnName);

    std::unique_ptr<GameBodyFactory> factory_;
    std::unique_ptr<GameHUD> hud_;
    std::vector<SpawnPoint*> spawnPoints_;
    GameVar* drawTimerVar_ = nullptr;
    GameVar* maxGibsVar_ = nullptr;
    int screenWidth_ = 0;
    int screenHeight_ = 0;
    int gibCount_ = 0;
    /// A save was read: its clocks stay in force at the next level start.
    bool stateLoaded_ = false;
    /// Level time of the level that ended last, until the next one starts (ms).
    float endedLevelTime_ = 0;
    Race race_;
};

}  // namespace bc
