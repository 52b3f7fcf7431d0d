// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/triggers/TriggerBody.h"
#include "world/Creatable.h"

namespace bc {

/// The start line of a course (type "racestart"): starts the race clock.
class RaceStart final : public Creatable<RaceStart, TriggerBody> {
  public:
    RaceStart();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo& info) override;
    void onThink(float dt) override;

    /// Id of the finish; for level makers only.
    std::string endBody;
};

}  // namespace bc
