// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/hazards/ExplodingBarrel.h"

#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/RadiusDamage.h"

namespace bc {

ExplodingBarrel::ExplodingBarrel() {
    type = "explodingbarrel";
    texture = "data/images/explodingbarrel.png";
    textured = true;
    clampTexture = true;
    outlined = false;
    thinks = true;
    takesDamage = true;
    health = maxHealth = initialHealth = 2;
    defaultHeight = 24;
}

std::unique_ptr<Body> ExplodingBarrel::create() const {
    return std::make_unique<ExplodingBarrel>();
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
