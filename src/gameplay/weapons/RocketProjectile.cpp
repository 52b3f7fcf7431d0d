// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/RocketProjectile.h"

#include "gameplay/actors/GameCategories.h"
#include "particles/ParticleManager.h"

namespace bc {

namespace {

constexpr float projectileSize = 8;
constexpr int playerFlames = 3;
constexpr int enemyFlames = 2;
/// A bolt of plasma is the rocket's star in the colour of plasma.
constexpr RGBAColour plasmaColour(120, 255, 160, 255);

}  // namespace

RocketProjectile::RocketProjectile() {
    type = "rocketprojectile";
    setTexture("data/images/rocketstar.png");
    glowTexture = "data/images/rocketstar.png";
    makeBox(projectileSize, projectileSize);
    RocketProjectile::renew();
}

std::unique_ptr<Body> RocketProjectile::create() const {
    return std::make_unique<RocketProjectile>();
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

PlasmaPistolProjectile::PlasmaPistolProjectile() {
    type = "plasmapistolprojectile";
    setTexture("data/images/rocketstar.png");
    glowTexture = "data/images/rocketstar.png";
    makeBox(projectileSize, projectileSize, plasmaColour);
    PlasmaPistolProjectile::renew();
}

std::unique_ptr<Body> PlasmaPistolProjectile::create() const {
    return std::make_unique<PlasmaPistolProjectile>();
}

void PlasmaPistolProjectile::renew() {
    Projectile::renew();
    damageType = damage::plasma;
    gravitymultiplier = 0;
    hasGlow = true;
    glowSteps = 1;
}

void PlasmaPistolProjectile::attachEffects() {
    attachTrail("plasmatrail");
}

void PlasmaPistolProjectile::onTouch(const TouchInfo& touch) {
    if (!exploded && isStoppedBy(*touch.other))
        explode();
}

void PlasmaPistolProjectile::blastEffects() {
    startParticles("bullethit", pos);
    startParticles("spark", pos);
}

}  // namespace bc
