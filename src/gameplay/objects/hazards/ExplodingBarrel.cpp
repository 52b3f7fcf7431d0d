// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/hazards/ExplodingBarrel.h"

#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/RadiusDamage.h"
#include "world/BodyFields.h"

namespace bc {

ExplodingBarrel::ExplodingBarrel() {
    texture = "data/images/explodingbarrel.png";
    textured = true;
    clampTexture = true;
    outlined = false;
    thinks = true;
    takesDamage = true;
    health = maxHealth = initialHealth = 2;
    defaultHeight = 24;
}

void ExplodingBarrel::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level()
        .box(16, 24)
        .with("entity", "true")
        .with("mass", "50")
        .with("solid", "true")
        .with("texture", texture)
        .with("texmap", "fit");
}

void ExplodingBarrel::die() {
    // The blast may reach another barrel whose blast comes back here.
    if (exploding_ || dying || inLimbo)
        return;
    exploding_ = true;
    radiusDamage(pos, blastRadius, blastKnockback, blastDamage, damage::blast, this);
    explosionEffects(pos);
    GameBody::die();
    exploding_ = false;
}

}  // namespace bc
