// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/triggers/TriggerBody.h"
#include "world/Creatable.h"

namespace bc {

/// A place where the time so far is shown (type "racecheckpoint").
class RaceCheckpoint final : public Creatable<RaceCheckpoint, TriggerBody> {
  public:
    RaceCheckpoint();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo& info) override;
};

}  // namespace bc
