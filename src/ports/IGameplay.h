// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

class TiXmlElement;

namespace bc {

class GameBodyFactory;
class GameplayInput;
class IRenderer;
class Player;
struct GameResourceBundle;

/// The rules of play as the application drives them. One implementation, DefaultGameplay.
class IGameplay {
  public:
    virtual ~IGameplay() = default;
    /// Once, after the first setScreenSize. The bundle's pointers outlive the controller.
    virtual bool init(std::unique_ptr<GameResourceBundle> bundle) = 0;
    /// Once, before the controller is deleted.
    virtual bool shutdown() = 0;

    /// The craft. The rules know it until it is deleted.
    virtual std::unique_ptr<Player> createPlayer() = 0;
    virtual std::unique_ptr<GameplayInput> createInputTarget() = 0;
    /// Owned by the controller; gone after shutdown.
    virtual GameBodyFactory* getFactory() = 0;

    // Once a simulation step, in this order; dt in seconds.
    virtual void beforeUpdate() = 0;
    virtual void update(float dt) = 0;
    /// After the bodies have moved.
    virtual void afterUpdate() = 0;

    /// After the bodies of a level are in the world. spawnName: the start point, empty for the
    /// level's own.
    virtual void startLevel(const std::string& spawnName) = 0;
    /// Before the bodies of a level go; also when none runs.
    virtual void endLevel() = 0;

    /// Once a drawn scene, over bodies and particles.
    virtual void draw() = 0;
    /// Once a pass, over everything but the menus; dt in seconds.
    virtual void drawHud(IRenderer& renderer, float dt) = 0;
    /// Window size in pixels.
    virtual void setScreenSize(int width, int height) = 0;

    // The level and race clocks, in a save's root element and while the game is paused.
    virtual void saveGameplayState(TiXmlElement& node) = 0;
    /// The clocks stay in force at the next startLevel.
    virtual void loadGameplayState(const TiXmlElement& node) = 0;
    /// Before saveGameplayState: counts the time of the pass that saves.
    virtual void beforeSave() = 0;
    /// Ticks the level clock outside the steps.
    virtual void tickClock() = 0;
    virtual void pause() = 0;
    virtual void resume() = 0;

    /// Gibs that the budget has granted and not got back.
    [[nodiscard]] virtual int gibCount() const = 0;
};

}  // namespace bc
