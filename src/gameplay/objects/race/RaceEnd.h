// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/triggers/TriggerBody.h"
#include "world/Creatable.h"

namespace bc {

/// The finish (type "raceend").
class RaceEnd final : public Creatable<RaceEnd, TriggerBody> {
  public:
    RaceEnd();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo& info) override;

    // For level makers only; seconds.
    std::string startBody;
    float targetTime = -1;
};

}  // namespace bc
