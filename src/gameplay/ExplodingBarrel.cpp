// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/ExplodingBarrel.h"

#include "gameplay/Effects.h"
#include "gameplay/GameCategories.h"
#include "gameplay/RadiusDamage.h"

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
}

std::unique_ptr<Body> ExplodingBarrel::create() const {
    return std::make_unique<ExplodingBarrel>();
}

void ExplodingBarrel::die() {
    // Once: the blast may reach another barrel whose blast comes back here.
    if (!exploded_) {
        exploded_ = true;
        radiusDamage(pos, blastRadius, blastKnockback, blastDamage, damage::blast, this);
        explosionEffects(pos);
    }
    GameBody::die();
}

}  // namespace bc
