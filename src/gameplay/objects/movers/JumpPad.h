// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// Throws whatever touches it (type "jumppad").
class JumpPad : public Creatable<JumpPad, GameBody> {
  public:
    JumpPad();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo& info) override;

    /// Units a second; added to the velocity or in its place.
    Vector speed;
    bool additive = false;
};

}  // namespace bc
