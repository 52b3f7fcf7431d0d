// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// What files know of a game body.
#include "gameplay/actors/GameBody.h"
#include "world/BodyFields.h"

#include <algorithm>
#include <string>

namespace bc {

namespace {

/// More than a world has bodies.
constexpr int mostChildren = 1 << 20;

}  // namespace

void GameBody::fields(BodyFields& f) {
    Body::fields(f);
    f.param(
         "health", health, [this](int given) { health = maxHealth = initialHealth = given; },
         "Health it starts with and can have at most.")
        .leftOut()
        .onlyIf(takesDamage)
        .rank(-2);
    f.param("lives", numLives, "Times it lives; it comes back three seconds after each death.")
        .leftOut()
        .onlyIf(takesDamage)
        .rank(-2);

    f.saved("health", health);
    f.saved("maxhealth", maxHealth);
    f.saved("armour", armour);
    f.saved("maxarmour", maxArmour);
    f.saved("takedamage", takesDamage);
    f.saved("dying", dying);
    f.saved("showdamage", showDamage);
    f.saved("deathtime", deathTime);
    f.saved("deathdelay", deathDelay);
    f.saved("nextpaintime", nextPainTime);
    f.saved("notarget", noTarget);
    f.saved("hasquad", hasQuad);
    f.saved("damagefactor", damageFactor);
    f.saved("quadtime", quadTime);
    f.savedAs("numalive", numAlive, [this](int n) { numAlive = std::clamp(n, 0, mostChildren); });
    f.saved("maxalive", maxAlive);
    f.savedAs("ownerid", owner != nullptr ? owner->autoid : 0,
              [this](int savedId) { ownerId = savedId; });
    f.saved("hasinvinc", hasInvinc);
    f.saved("damagetakenfactor", damageTakenFactor);
    f.saved("invinctime", invincTime);
    f.saved("numlives", numLives);
    f.saved("inlimbo", inLimbo);
    f.saved("revivetime", reviveTime);
    f.saved("initialhealth", initialHealth);
    f.savedIf(inLimbo, "limboplace", limboPlace, pos);

    f.shown("health", health);
    f.shown("maxhealth", maxHealth);
    f.shown("armour", armour);
    f.shown("maxarmour", maxArmour);
    f.shown("takesdamage", takesDamage);
    f.shown("showdamage", showDamage);
    f.shown("flags", static_cast<int>(flags.bits));
    f.shown("team", static_cast<int>(team.bits));
    f.shown("notarget", noTarget);
    f.shown("god", godMode);
    f.shown("dying", dying);
    f.shown("inlimbo", inLimbo);
    f.shown("revivetime", reviveTime);
    f.shown("numlives", numLives);
    f.shown("hasquad", hasQuad);
    f.shown("quadtime", quadTime);
    f.shown("damagefactor", damageFactor);
    f.shown("hasinvinc", hasInvinc);
    f.shown("invinctime", invincTime);
    f.shown("damagetakenfactor", damageTakenFactor);
    f.shown("nextpaintime", nextPainTime);
    f.shown("owner", owner != nullptr ? owner->autoid : 0);
    f.shown("numalive", numAlive);
    f.shown("maxalive", maxAlive);
    f.shown("children", [this] {
        std::string ids;
        for (const GameBody* child : children)
            ids += (ids.empty() ? "" : ",") + std::to_string(child->autoid);
        return ids;
    });
}

}  // namespace bc
