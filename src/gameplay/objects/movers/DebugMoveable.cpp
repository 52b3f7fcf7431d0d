// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/movers/DebugMoveable.h"

#include "world/BodyFields.h"

namespace bc {

DebugMoveable::DebugMoveable() {
    // What a spawner makes has no level to dress it.
    texture = "data/images/crate.png";
    textured = true;
    clampTexture = true;
    outlined = false;
    showDamage = false;
}

void DebugMoveable::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level()
        .box(32, 32)
        .with("entity", "true")
        .with("solid", "true")
        .with("mass", "100")
        .with("texture", texture)
        .with("texmap", "fit");
}

}  // namespace bc
