// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/BatterySlot.h"

#include "gameplay/objects/movers/Battery.h"
#include "world/BodyFields.h"
#include "world/TouchInfo.h"

namespace bc {

BatterySlot::BatterySlot() {}

void BatterySlot::fields(BodyFields& f) {
    Trigger::fields(f);
    f.level()
        .box(24, 24)
        .with("visible", "true")
        .with("texture", "data/images/batteryslot.png")
        .with("texmap", "fit");
}

void BatterySlot::onTouch(const TouchInfo& info) {
    if (triggered || dynamic_cast<const Battery*>(info.other) == nullptr)
        return;
    arm();
    fireTargets();
}

}  // namespace bc
