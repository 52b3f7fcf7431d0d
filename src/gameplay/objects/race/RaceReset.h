// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/triggers/TriggerBody.h"
#include "world/Creatable.h"

namespace bc {

/// Calls the race off (type "racereset").
class RaceReset final : public Creatable<RaceReset, TriggerBody> {
  public:
    RaceReset();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo& info) override;
};

}  // namespace bc
