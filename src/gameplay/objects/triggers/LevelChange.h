// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// The way out of a level: to another one, or to a cutscene (type "levelchange").
class LevelChange final : public Creatable<LevelChange, GameBody> {
  public:
    LevelChange();
    void fields(BodyFields& f) override;

    void onLoaded() override;
    void onTouch(const TouchInfo& info) override;

    /// Map names; ".xml" is part of them.
    std::string levelTarget;
    std::string demoLevelTarget;
    /// Id of the spawn point to arrive at; empty for the start.
    std::string targetSpawn;
    bool isCutscene = false;
    std::string cutscene;

  private:
    /// Level time (ms) from which a failed change is tried again.
    float nextTry_ = 0;
};

}  // namespace bc
