// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/WeaponTable.h"

#include <algorithm>

namespace bc {

namespace {

constexpr WeaponMapping weapons[] = {
    {weapon::grapple, 0, "grapple", "Grappling Hook", 1},
    {weapon::pistol, 1, "pistol", "Pistol", 2},
    {weapon::plasmaGun, 2, "plasmagun", "Plasma Gun", 3},
    {weapon::shotgun, 3, "shotgun", "Shotgun", 4},
    {weapon::chaingun, 4, "chaingun", "Chaingun", 5},
    {weapon::grenadeLauncher, 5, "grenadelauncher", "Grenade Launcher", 6},
    {weapon::rocketLauncher, 6, "rocketlauncher", "Rocket Launcher", 7},
    {weapon::railgun, 7, "railgun", "Railgun", 8},
    {weapon::lightningGun, 8, "lightninggun", "Lightning Gun", 9},
    {weapon::swarm, 9, "swarm", "Swarm", 0},
    {weapon::magneticGun, 10, "magneticgun", "Magnetic Gun", 0},
};

constexpr AmmoMapping ammunition[] = {
    {0, "grappleammo", "Grapple Ammo", infiniteAmmo},
    {1, "pistolammo", "Pistol Ammo", infiniteAmmo},
    {2, "plasmagunammo", "Plasma", 300},
    {3, "shotgunammo", "Shells", 50},
    {4, "chaingunammo", "Bullets", 300},
    {5, "grenadelauncherammo", "Grenades", 50},
    {6, "rocketlauncherammo", "Rockets", 50},
    {7, "railgunammo", "Rails", 50},
    {8, "lightninggunammo", "Lightning", 300},
    {9, "swarmammo", "Swarm Ammo", infiniteAmmo},
    // Belongs to no weapon; nothing is ever counted against it.
    {10, "magneticammo", "Magnetic Ammo", 0},
};

constexpr std::string_view invalid = "invalid";

template <class Table, class Matches>
auto find(const Table& table, Matches matches) {
    const auto found = std::find_if(std::begin(table), std::end(table), matches);
    return found == std::end(table) ? nullptr : found;
}

const WeaponMapping* findWeapon(int id) {
    return find(weapons, [id](const WeaponMapping& m) { return m.weaponId == id; });
}

const AmmoMapping* findAmmo(int id) {
    return find(ammunition, [id](const AmmoMapping& m) { return m.ammoId == id; });
}

}  // namespace

std::span<const WeaponMapping> weaponTable() {
    return weapons;
}
std::span<const AmmoMapping> ammoTable() {
    return ammunition;
}

std::vector<std::string_view> weaponNames() {
    std::vector<std::string_view> names;
    for (const WeaponMapping& m : weapons)
        if (m.weaponId <= weapon::lastFiring)
            names.push_back(m.name);
    return names;
}

std::vector<std::string_view> ammoNames() {
    std::vector<std::string_view> names;
    for (const AmmoMapping& m : ammunition)
        if (m.maximum > 0)
            names.push_back(m.name);
    return names;
}

int weaponIdOf(std::string_view name) {
    const auto* m = find(weapons, [&](const WeaponMapping& w) { return w.name == name; });
    return m != nullptr ? m->weaponId : -1;
}

int ammoIdOf(std::string_view name) {
    const auto* m = find(ammunition, [&](const AmmoMapping& a) { return a.name == name; });
    return m != nullptr ? m->ammoId : -1;
}

std::string_view weaponName(int weaponId) {
    const WeaponMapping* m = findWeapon(weaponId);
    return m != nullptr ? m->name : invalid;
}

std::string_view weaponDisplayName(int weaponId) {
    const WeaponMapping* m = findWeapon(weaponId);
    return m != nullptr ? m->displayName : invalid;
}

std::string_view ammoName(int ammoId) {
    const AmmoMapping* m = findAmmo(ammoId);
    return m != nullptr ? m->name : invalid;
}

std::string_view ammoDisplayName(int ammoId) {
    const AmmoMapping* m = findAmmo(ammoId);
    return m != nullptr ? m->displayName : invalid;
}

}  // namespace bc
