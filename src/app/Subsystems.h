// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/SkyWiring.h"
#include "core/BasicTimer.h"
#include "gameplay/player/PlayerControl.h"
#include "input/InputManager.h"
#include "sky/SkyManager.h"
#include "world/World.h"

#include <cassert>
#include <memory>

namespace bc {

class BodyFactory;
class Console;
class GameplayInput;
class GUIManager;
class IGame;
class IGameplay;
class IRenderer;
class Player;
class Sound;

/// The subsystems of the program. Game owns the one object, and the parts of the application hold
/// references to it or to single subsystems. Those of play exist from createPlay to release, the
/// others from construction to release; asking for one at another time is a fault of the program.
class Subsystems {
  public:
    /// headless: the renderer and the sound system without devices.
    explicit Subsystems(bool headless);
    ~Subsystems();
    Subsystems(const Subsystems&) = delete;
    Subsystems& operator=(const Subsystems&) = delete;

    /// Makes the controller with its factory and input target, and the craft. The game outlives
    /// them. Once, with an initialised renderer.
    void createPlay(IGame& game);
    /// Ends and deletes every subsystem in an order in which none misses another, and empties the
    /// registries of commands and variables. Later calls do nothing.
    void release();
    [[nodiscard]] bool isReleased() const { return isReleased_; }

    [[nodiscard]] Sound& sound() { return existing(sound_); }
    [[nodiscard]] IRenderer& renderer() { return existing(renderer_); }
    [[nodiscard]] GUIManager& gui() { return existing(gui_); }
    [[nodiscard]] Console& console() { return existing(console_); }
    [[nodiscard]] InputManager& input() { return input_; }
    [[nodiscard]] World& world() { return world_; }
    [[nodiscard]] SkyManager& sky() { return sky_; }
    /// Ticked once a pass of the main loop; stands while the game is paused.
    [[nodiscard]] BasicTimer& frameClock() { return frameClock_; }

    // Those of play.
    [[nodiscard]] IGameplay& gameplay() { return existing(gameplay_); }
    [[nodiscard]] GameplayInput& gameInput() { return existing(gameInput_); }
    [[nodiscard]] PlayerControl& control() { return control_; }
    [[nodiscard]] BodyFactory& bodyFactory() { return existing(bodyFactory_); }
    [[nodiscard]] Player& player() { return existing(player_); }

  private:
    template <class T>
    static T& existing(const std::unique_ptr<T>& subsystem) {
        assert(subsystem != nullptr);
        return *subsystem;
    }
    /// Gives the controller its bundle and initialises it.
    void setGameplay(std::unique_ptr<IGameplay> gameplay, IGame& game);
    void deleteGameplay();

    std::unique_ptr<IGameplay> gameplay_;
    std::unique_ptr<Sound> sound_;
    std::unique_ptr<IRenderer> renderer_;
    std::unique_ptr<GUIManager> gui_;
    InputManager input_;
    std::unique_ptr<Console> console_;
    std::unique_ptr<GameplayInput> gameInput_;
    PlayerControl control_;
    std::unique_ptr<Player> player_;
    std::unique_ptr<BodyFactory> bodyFactory_;
    World world_;
    ParticleSkySystems skyParticles_;
    WorldSightLine sightLine_;
    SkyManager sky_;
    BasicTimer frameClock_;
    bool isReleased_ = false;
};

}  // namespace bc
