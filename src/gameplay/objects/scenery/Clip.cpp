// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/scenery/Clip.h"

#include "gameplay/actors/GameCategories.h"
#include "world/BodyFields.h"

namespace bc {

Clip::Clip() {
    category = category::clip;
    visible = false;
    showDamage = false;
}

void Clip::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level().canBeCut().with("solid", "true").with("visible", "false");
}

void Clip::onLoaded() {
    GameBody::onLoaded();
    // Whatever the level says of it.
    visible = false;
    solid = true;
}

}  // namespace bc
