// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/GameplaySingleton.h"

#include "ports/IGame.h"
#include "world/World.h"

namespace bc {

namespace {

std::unique_ptr<GameplaySingleton>& holder() {
    static std::unique_ptr<GameplaySingleton> object;
    return object;
}

}  // namespace

GameplaySingleton& GameplaySingleton::instance() {
    std::unique_ptr<GameplaySingleton>& object = holder();
    if (!object)
        object = std::make_unique<GameplaySingleton>();
    return *object;
}

bool GameplaySingleton::exists() {
    return holder() != nullptr;
}

void GameplaySingleton::clear() {
    // Emptied before it is deleted: what goes with it may ask whether it is still there.
    const std::unique_ptr<GameplaySingleton> gone = std::move(holder());
}

IGame* GameplaySingleton::game() const {
    return resources ? resources->game : nullptr;
}

ISound* GameplaySingleton::sound() const {
    return resources ? resources->sound : nullptr;
}

IRenderer* GameplaySingleton::renderer() const {
    return resources ? resources->renderer : nullptr;
}

World* GameplaySingleton::world() const {
    IGame* const application = game();
    return application != nullptr ? &application->getWorld() : nullptr;
}

float GameplaySingleton::frameSeconds() const {
    const BasicTimer* clock = resources ? resources->timer : nullptr;
    return clock != nullptr ? clock->frameSeconds() : 0.0F;
}

float levelTime() {
    return GameplaySingleton::instance().levelTime();
}

}  // namespace bc
