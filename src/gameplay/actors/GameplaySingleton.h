// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/BasicTimer.h"
#include "ports/GameResourceBundle.h"

#include <memory>

namespace bc {

class BodyPool;
class GameBody;
class GameHUD;
class Rules;
class World;
struct WeaponDefinitions;

/// Where every body of play finds the controller, the application and the level clock. One object
/// a process, made on first use; clear() lets it go, so that the next use starts afresh.
class GameplaySingleton {
  public:
    static GameplaySingleton& instance();
    [[nodiscard]] static bool exists();
    static void clear();

    /// Milliseconds since the level began, pauses not counted. All timed rules of play store
    /// absolute values of it.
    [[nodiscard]] float levelTime() const { return levelClock.elapsed(); }

    // Shortcuts into the bundle; null before gameplay has been initialised, and where the
    // application has none.
    [[nodiscard]] IGame* game() const;
    [[nodiscard]] ISound* sound() const;
    [[nodiscard]] IRenderer* renderer() const;
    [[nodiscard]] World* world() const;
    /// Length of the current frame in seconds, 0 without a frame clock.
    [[nodiscard]] float frameSeconds() const;

    std::unique_ptr<GameResourceBundle> resources;
    BasicTimer levelClock;
    /// The craft; null while there is none. Not owned.
    GameBody* craft = nullptr;
    // Neither is owned; both belong to the application's controller.
    GameHUD* hud = nullptr;
    Rules* rules = nullptr;

    // Made by bodyPool() and weaponDefinitions() on first use.
    std::shared_ptr<BodyPool> pool;
    std::shared_ptr<WeaponDefinitions> weapons;
};

/// Level time in milliseconds, for the many rules that need nothing else of the singleton.
[[nodiscard]] float levelTime();

}  // namespace bc
