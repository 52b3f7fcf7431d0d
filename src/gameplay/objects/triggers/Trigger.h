// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/triggers/TriggerBody.h"

namespace bc {

/// Sets off its targets when the player touches it (type "trigger").
class Trigger : public TriggerBody {
  public:
    Trigger();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTouch(const TouchInfo& info) override;
};

/// The same for a body of type "battery" (type "batteryslot").
class BatterySlot final : public Trigger {
  public:
    BatterySlot();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTouch(const TouchInfo& info) override;
};

/// Something to carry to a slot (type "battery").
class Battery final : public GameBody {
  public:
    Battery();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
};

}  // namespace bc
