// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// Moves whatever touches it to its first target (type "teleporter").
class Teleporter final : public Creatable<Teleporter, GameBody> {
  public:
    Teleporter();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo& info) override;

    /// What comes through leaves with exitVelocity instead of its own.
    bool changeVelocity = false;
    Vector exitVelocity;
};

}  // namespace bc
