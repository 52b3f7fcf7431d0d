// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/Trigger.h"

#include "world/TouchInfo.h"

namespace bc {

Trigger::Trigger() {
    type = "trigger";
}

std::unique_ptr<Body> Trigger::create() const {
    return std::make_unique<Trigger>();
}

void Trigger::onTouch(const TouchInfo& info) {
    if (!isReadyFor(info))
        return;
    arm();
    fireTargets();
}

BatterySlot::BatterySlot() {
    type = "batteryslot";
}

std::unique_ptr<Body> BatterySlot::create() const {
    return std::make_unique<BatterySlot>();
}

void BatterySlot::onTouch(const TouchInfo& info) {
    if (triggered || dynamic_cast<const Battery*>(info.other) == nullptr)
        return;
    arm();
    fireTargets();
}

Battery::Battery() {
    type = "battery";
    texture = "data/images/battery.png";
    textured = true;
    clampTexture = true;
    outlined = false;
    thinks = true;
    hasGlow = true;
    glowSteps = 2;
}

std::unique_ptr<Body> Battery::create() const {
    return std::make_unique<Battery>();
}

}  // namespace bc
