// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace bc {

/// Weapon ids as commands, saves and level files use them.
namespace weapon {
inline constexpr int grapple = 1;
inline constexpr int pistol = 2;
inline constexpr int plasmaGun = 3;
inline constexpr int shotgun = 4;
inline constexpr int chaingun = 5;
inline constexpr int grenadeLauncher = 6;
inline constexpr int rocketLauncher = 7;
inline constexpr int railgun = 8;
inline constexpr int lightningGun = 9;
inline constexpr int swarm = 10;
/// Can be named and owned, but is no weapon: it has no ammunition and fires nothing.
inline constexpr int magneticGun = 11;
/// Ids 1 to last can be owned and selected, ids 1 to lastFiring have a weapon object.
inline constexpr int last = 11;
inline constexpr int lastFiring = 10;
}  // namespace weapon

/// An ammunition count that firing does not lower.
inline constexpr int infiniteAmmo = -1;

struct WeaponMapping {
    int weaponId;
    int ammoId;
    /// Used by commands, pickups, level files and as the name of the weapon's pictures.
    std::string_view name;
    std::string_view displayName;
    /// Order of preference when an empty weapon is put away.
    int rating;
};

struct AmmoMapping {
    int ammoId;
    std::string_view name;
    std::string_view displayName;
    /// infiniteAmmo: the player always has some.
    int maximum;
};

/// In the order of their ids.
[[nodiscard]] std::span<const WeaponMapping> weaponTable();
[[nodiscard]] std::span<const AmmoMapping> ammoTable();

/// Names of what levels can hold as a pickup or name as one: the weapons that fire, and the
/// ammunition of those that need any.
[[nodiscard]] std::vector<std::string_view> weaponNames();
[[nodiscard]] std::vector<std::string_view> ammoNames();

/// -1 for a name that is not in the table.
[[nodiscard]] int weaponIdOf(std::string_view name);
[[nodiscard]] int ammoIdOf(std::string_view name);
/// "invalid" for an id that is not in the table.
[[nodiscard]] std::string_view weaponName(int weaponId);
[[nodiscard]] std::string_view weaponDisplayName(int weaponId);
[[nodiscard]] std::string_view ammoName(int ammoId);
[[nodiscard]] std::string_view ammoDisplayName(int ammoId);

}  // namespace bc
