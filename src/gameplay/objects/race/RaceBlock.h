// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "gameplay/actors/Race.h"
#include "world/Creatable.h"

namespace bc {

/// A block to push into a goal (type "raceblock").
class RaceBlock final : public Creatable<RaceBlock, GameBody>, public RaceMember {
  public:
    RaceBlock();
    void fields(BodyFields& f) override;

    void onSpawned() override;
    void onRaceStarted() override { counted = false; }
    void onRaceReset() override { reset(); }
    /// Back to where it started, not counted.
    void reset();

    Vector startPos;
    bool counted = false;
};

}  // namespace bc
