// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/triggers/TriggerBody.h"
#include "world/Creatable.h"

namespace bc {

/// Sets off its targets when the player touches it (type "trigger").
class Trigger : public Creatable<Trigger, TriggerBody> {
  public:
    Trigger();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo& info) override;
};

}  // namespace bc
