// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/TargetGroup.h"

#include "gameplay/actors/GameCategories.h"

namespace bc {

TargetGroup::TargetGroup() {
    type = "targetgroup";
    visible = false;
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

std::unique_ptr<Body> TargetGroup::create() const {
    return std::make_unique<TargetGroup>();
}

void TargetGroup::onTriggered(GameBody* activator) {
    fireTargetsAs(activator);
}

}  // namespace bc
