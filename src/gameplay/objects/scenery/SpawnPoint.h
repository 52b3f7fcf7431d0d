// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// A place where the player appears (type "spawnpoint"), named by its id or marked as the start of
/// the level.
class SpawnPoint final : public Creatable<SpawnPoint, GameBody> {
  public:
    SpawnPoint();
    void fields(BodyFields& f) override;

    /// The glitter of something appearing here.
    void appearanceEffect() const;

    bool startPoint = false;
};

}  // namespace bc
