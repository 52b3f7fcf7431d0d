// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/TargetGroup.h"

#include "gameplay/actors/GameCategories.h"
#include "world/BodyFields.h"

namespace bc {

TargetGroup::TargetGroup() {
    visible = false;
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

void TargetGroup::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level().box(16, 16).with("visible", "false");
}

void TargetGroup::onTriggered(GameBody* activator) {
    fireTargetsAs(activator);
}

}  // namespace bc
