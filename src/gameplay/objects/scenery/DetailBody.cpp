// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/scenery/DetailBody.h"

#include "gameplay/actors/GameCategories.h"
#include "world/BodyFields.h"

namespace bc {

DetailBody::DetailBody() {
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

void DetailBody::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level().canBeCut().with("z-shift", "-1");
}

}  // namespace bc
