// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// Something to push about (type "debugmoveable").
class DebugMoveable final : public Creatable<DebugMoveable, GameBody> {
  public:
    DebugMoveable();
    void fields(BodyFields& f) override;
};

}  // namespace bc
