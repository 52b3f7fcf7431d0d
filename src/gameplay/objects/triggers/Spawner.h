// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// Makes bodies of a type once something has set it off (type "spawner").
class Spawner final : public Creatable<Spawner, GameBody> {
  public:
    Spawner();
    void fields(BodyFields& f) override;

    void onTriggered(GameBody* activator) override;
    void onThink(float dt) override;

    /// The player cannot be spawned.
    std::string spawnedType;
    int spawnLevel = 1;
    /// Milliseconds.
    float spawnDelay = 0;
    float untriggerTime = 0;
    int maxSpawned = 1;
    int numSpawned = 0;
    bool active = false;
    bool triggered = false;
    // Level times (ms).
    float nextSpawn = 0;
    float untriggerAt = 0;

  private:
    void spawn();
};

}  // namespace bc
