// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

/// Ids of the sounds of play in data/sounds/sounds.xml.
namespace bc::sound {

inline constexpr int explosion = 0;
inline constexpr int rocketFire = 1;
inline constexpr int swarmFire = 1;
inline constexpr int grenadeFire = 2;
inline constexpr int grappleFire = 3;
inline constexpr int railFire = 4;
inline constexpr int pistolFire = 5;
/// The first of four.
inline constexpr int chaingunFire = 5;
inline constexpr int weaponChange = 9;
inline constexpr int noAmmo = 10;
inline constexpr int splash = 11;
inline constexpr int bounceLow = 12;
inline constexpr int bounceHigh = 13;
inline constexpr int ammoPickup = 14;
inline constexpr int respawn = 15;
inline constexpr int armourPickup = 16;
inline constexpr int weaponPickup = 17;
inline constexpr int healthPickup = 18;
inline constexpr int teleport = 19;
inline constexpr int grappleHold = 20;
inline constexpr int shotgunFire = 21;
inline constexpr int lightningLoop = 22;
inline constexpr int plasmaFire = 23;
inline constexpr int cash = 24;
inline constexpr int powerUp = 25;
inline constexpr int quadFire = 26;
inline constexpr int quadEnd = 27;
inline constexpr int jumpPad = 28;
inline constexpr int megaHealth = 29;
inline constexpr int upgrade = 30;
inline constexpr int alarm = 32;
inline constexpr int switchOn = 33;
inline constexpr int plasmaPistolFire = 34;
inline constexpr int melee = 36;
inline constexpr int zap = 37;
inline constexpr int gridOn = 38;
inline constexpr int gridOff = 39;
inline constexpr int eggCrack = 40;
inline constexpr int hatch = 41;
inline constexpr int repair = 42;

}  // namespace bc::sound
