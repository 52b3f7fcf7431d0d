// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// Passes on what sets it off to its own targets (type "targetgroup").
class TargetGroup final : public Creatable<TargetGroup, GameBody> {
  public:
    TargetGroup();
    void fields(BodyFields& f) override;

    void onTriggered(GameBody* activator) override;
};

}  // namespace bc
