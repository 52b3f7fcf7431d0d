// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace bc {

/// Body::category: what collision filters and triggers ask of a body.
namespace category {
inline constexpr int player = 1;
inline constexpr int health = 2;
inline constexpr int armour = 3;
inline constexpr int spawnPoint = 4;
inline constexpr int levelChange = 5;
inline constexpr int projectile = 7;
inline constexpr int rocket = 8;
inline constexpr int grenade = 9;
inline constexpr int grapple = 10;
inline constexpr int water = 11;
inline constexpr int lava = 12;
inline constexpr int clip = 13;
}  // namespace category

/// Bits of GameBody::team.
namespace team {
inline constexpr std::uint32_t enemy = 2;
inline constexpr std::uint32_t player = 4;
}  // namespace team

/// Bits of GameBody::flags.
namespace bodyflag {
/// Weapon traces and explosions pass the body over.
inline constexpr std::uint32_t untouchable = 2;
}  // namespace bodyflag

/// What hurts a body. Compared as values where a body cares; environment is not a set of bits.
namespace damage {
inline constexpr int environment = -1;
inline constexpr int pistol = 1;
inline constexpr int plasma = 2;
inline constexpr int shotgun = 4;
inline constexpr int chaingun = 8;
inline constexpr int grenade = 16;
inline constexpr int rocket = 32;
inline constexpr int rail = 64;
inline constexpr int lightning = 128;
/// Barrels and enemies that blow themselves up.
inline constexpr int blast = 512;
/// A block driven into the block boss.
inline constexpr int bossBlock = 2048;
}  // namespace damage

}  // namespace bc
