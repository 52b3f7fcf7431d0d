// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "world/BodyFactory.h"

#include <memory>
#include <span>
#include <string_view>

namespace bc {

/// A row of the table of body types: how level files and spawners name it, its class, and how an
/// object of it is made.
struct GameBodyType {
    std::string_view name;
    std::string_view className;
    std::unique_ptr<Body> (*make)();
};

/// For the make column.
template <class T>
std::unique_ptr<Body> makeBodyOf() {
    return std::make_unique<T>();
}

/// Makes the bodies of play by type name. Two types may share a class; the type name tells them
/// apart.
class GameBodyFactory final : public BodyFactory {
  public:
    /// enemyTypes come from the floor above; not owned, must outlive the factory.
    explicit GameBodyFactory(std::span<const GameBodyType> enemyTypes = {})
        : enemyTypes_(enemyTypes) {}

    /// One prototype for every type, in table order: the game's own types, the enemies in their
    /// place among them.
    void registerDefaults() override;

    // The game's own types before and after the enemies.
    [[nodiscard]] static std::span<const GameBodyType> typesBeforeEnemies();
    [[nodiscard]] static std::span<const GameBodyType> typesAfterEnemies();

  private:
    std::span<const GameBodyType> enemyTypes_;
};

}  // namespace bc
