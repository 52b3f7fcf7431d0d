// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/player/CraftMovement.h"

#include "gameplay/player/Player.h"
#include "gameplay/player/PlayerIntent.h"

#include <algorithm>
#include <cmath>

namespace bc {

namespace {

// Thrust per unit of mass: units a second squared.
constexpr float flightThrust = 300;
constexpr float groundThrust = 190;
constexpr float airThrust = 80;
constexpr float jumpThrust = 320;
/// Seconds that a jump lifts after the craft has left the ground.
constexpr float jumpTime = 0.3F;
/// Force against the motion, per unit of speed (not of mass: it only takes the edge off).
constexpr float damping = 0.9F;

constexpr float boostFactor = 2.5F;
constexpr float boostSeconds = 0.35F;
constexpr float rechargeSeconds = 1.5F;
/// Less than this of a duration is left over by rounding.
constexpr float roundingSeconds = 0.001F;
/// Seconds in which the brakes take half the speed.
constexpr float brakeHalving = 0.15F;

/// How hard the engines push at the moment, in units a second squared.
struct Engines {
    float sideways;
    float up;
    float down;
};

Engines flightEngines() {
    return {flightThrust, flightThrust, flightThrust};
}

/// Also keeps count of the time in the air.
Engines platformEngines(Player& player) {
    const bool grounded = player.contact || player.standsOnEarlier;
    if (grounded) {
        player.canJump = true;
        player.airTime = 0;
    }
    if (player.airTime > jumpTime)
        player.canJump = false;
    return {grounded ? groundThrust : airThrust, player.canJump ? jumpThrust : 0.0F, jumpThrust};
}

/// From -1 to 1 each way.
Vector heldDirection(const PlayerIntent& intent) {
    return {intent.right - intent.left, intent.up - intent.down};
}

Vector thrustAlong(const Engines& engines, const Vector& direction) {
    return {direction.x * engines.sideways,
            direction.y * (direction.y > 0 ? engines.up : engines.down)};
}

Vector thrustOf(const Engines& engines, const PlayerIntent& intent) {
    Vector thrust = thrustAlong(engines, {heldDirection(intent).x, 0});
    // Both count when both are held: off the ground up has no thrust left and down wins.
    if (intent.up > 0)
        thrust.y += engines.up * intent.up;
    if (intent.down > 0)
        thrust.y -= engines.down * intent.down;
    return thrust;
}

/// Starts a burst when asked for and charged; true while one runs.
bool updateBoost(Player& player, bool wanted, float dt) {
    if (player.boostLeft <= 0) {
        if (!wanted || player.boostRecharge >= roundingSeconds) {
            player.boostRecharge = std::max(player.boostRecharge - dt, 0.0F);
            return false;
        }
        player.boostLeft = boostSeconds;
        player.startExhaust();
    }
    player.boostLeft -= dt;
    if (player.boostLeft < roundingSeconds) {
        player.boostLeft = 0;
        player.boostRecharge = rechargeSeconds;
        player.stopExhaust();
    }
    return true;
}

}  // namespace

void moveCraft(Player& player, const PlayerIntent& intent, bool platform, float dt) {
    const Engines engines = platform ? platformEngines(player) : flightEngines();
    Vector thrust = thrustOf(engines, intent);
    if (updateBoost(player, intent.boost, dt)) {
        if (heldDirection(intent).isZero())
            thrust = thrustAlong(engines, {player.aim.x, player.aim.y});
        thrust *= boostFactor;
    }
    player.standsOnEarlier = false;
    if (platform) {
        player.contact = false;
        player.airTime += dt;
    }
    Vector force = thrust * player.mass;
    if (dt > 0) {
        force.x -= damping * player.vel.x;
        force.y -= damping * player.vel.y;
    }
    player.applyForce(force, dt);
    if (intent.slow)
        player.vel *= std::pow(0.5F, dt / brakeHalving);
}

}  // namespace bc
