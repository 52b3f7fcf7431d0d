// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/triggers/Trigger.h"
#include "world/Creatable.h"

namespace bc {

/// The same for a body of type "battery" (type "batteryslot").
class BatterySlot final : public Creatable<BatterySlot, Trigger> {
  public:
    BatterySlot();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo& info) override;
};

}  // namespace bc
