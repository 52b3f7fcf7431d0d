// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

class TiXmlElement;

namespace bc {

class Body;
class GameBodyFactory;
class GameplayInput;
class IRenderer;
class Player;
class SpawnPoint;
struct GameResourceBundle;

/// The rules of play as the application drives them. One implementation, DefaultGameplay.
class IGameplay {
  public:
    virtual ~IGameplay() = default;
    /// Once, after setScreenSize; the bundle's pointers outlive the controller.
    virtual bool init(std::unique_ptr<GameResourceBundle> bundle) = 0;
    virtual bool shutdown() = 0;
    /// A new body of a level type, or null for an unknown one; owned by the caller.
    virtual std::unique_ptr<Body> createBody(const std::string& typeName) = 0;
    /// The craft, owned by the caller; the rules know it from now on until it is deleted.
    virtual std::unique_ptr<Player> createPlayer() = 0;
    virtual GameBodyFactory* getFactory() = 0;
    virtual void beforeUpdate() = 0;
    /// Once a simulation step, dt in seconds.
    virtual void update(float dt) = 0;
    virtual void afterUpdate() = 0;
    /// After the bodies of a level are in the world.
    virtual void startLevel(const std::string& spawnName) = 0;
    virtual void endLevel() = 0;
    virtual void draw() = 0;
    virtual void drawHud(IRenderer& renderer, float dt) = 0;
    virtual SpawnPoint* nearestSpawnPoint(const Body& body) = 0;
    virtual SpawnPoint* startSpawnPoint() = 0;
    virtual std::unique_ptr<GameplayInput> createInputTarget() = 0;
    virtual void setScreenSize(int width, int height) = 0;
    virtual void saveGameplayState(TiXmlElement& node) = 0;
    virtual void loadGameplayState(const TiXmlElement& node) = 0;
    virtual void beforeSave() = 0;
    virtual void tickClock() = 0;
    virtual void pause() = 0;
    virtual void resume() = 0;
    virtual void resetPlayerProgress() = 0;
    virtual SpawnPoint* findSpawnPoint(const std::string& id) = 0;
    /// Lowers count to what the gib budget still grants and takes it from there.
    virtual void reserveGibs(int& count) = 0;
};

}  // namespace bc
