// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/movers/Battery.h"

#include "world/BodyFields.h"

namespace bc {

Battery::Battery() {
    texture = "data/images/battery.png";
    textured = true;
    clampTexture = true;
    outlined = false;
    thinks = true;
    hasGlow = true;
    glowSteps = 2;
}

void Battery::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level()
        .box(16, 16)
        .with("entity", "true")
        .with("mass", "10")
        .with("solid", "true")
        .with("texture", texture)
        .with("texmap", "fit");
}

}  // namespace bc
