// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/PlasmaPistolProjectile.h"

#include "gameplay/actors/GameCategories.h"
#include "particles/ParticleManager.h"

namespace bc {

namespace {

constexpr float projectileSize = 8;  // world units
/// Tints the rocket's star, which the bolt is drawn with.
constexpr RGBAColour plasmaColour(120, 255, 160, 255);

}  // namespace

PlasmaPistolProjectile::PlasmaPistolProjectile() {
    type = "plasmapistolprojectile";
    setTexture("data/images/rocketstar.png");
    glowTexture = "data/images/rocketstar.png";
    makeBox(projectileSize, projectileSize, plasmaColour);
    PlasmaPistolProjectile::renew();
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
