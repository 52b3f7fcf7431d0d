// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/RocketProjectile.h"

#include "gameplay/actors/GameCategories.h"

namespace bc {

namespace {

constexpr float projectileSize = 8;  // world units
constexpr int playerFlames = 3;
constexpr int enemyFlames = 2;

}  // namespace

RocketProjectile::RocketProjectile() {
    type = "rocketprojectile";
    setTexture("data/images/rocketstar.png");
    glowTexture = "data/images/rocketstar.png";
    makeBox(projectileSize, projectileSize);
    RocketProjectile::renew();
}

void RocketProjectile::renew() {
    Projectile::renew();
    category = category::rocket;
    speed = 400;
    damage = 110;
    blastRadius = 32;
    knockback = 1;
    lifetime = 25000;
    damageType = damage::rocket;
    gravitymultiplier = 0;
    hasGlow = true;
    glowSteps = 1;
}

void RocketProjectile::attachEffects() {
    attachTrail("debugtrail");
    // What flashes no screen was fired by an enemy.
    if (noFlash)
        attachTrail("rocketflameenemy", enemyFlames);
    else
        attachTrail("rocketflame", playerFlames);
}

void RocketProjectile::onTouch(const TouchInfo& touch) {
    if (!exploded && isStoppedBy(*touch.other))
        explode();
}

}  // namespace bc
