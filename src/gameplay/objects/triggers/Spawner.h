// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"

namespace bc {

/// Makes bodies of a type once something has set it off (type "spawner").
class Spawner final : public GameBody {
  public:
    Spawner();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTriggered(GameBody* activator) override;
    void onThink(float dt) override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;
    void loadState(const TiXmlElement& e) override;
    void saveState(TiXmlElement& e) const override;
    void dumpState(TiXmlElement& debug) const override;

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
