// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/player/Inventory.h"

#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameBody.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/actors/Truncate.h"
#include "gameplay/weapons/FireableWeapon.h"
#include "gameplay/weapons/GrappleWeapon.h"
#include "gameplay/weapons/InstantWeapons.h"
#include "gameplay/weapons/LauncherWeapons.h"
#include "gameplay/weapons/SwarmWeapon.h"
#include "hud/GameHUD.h"

#include <algorithm>

namespace bc {

namespace {

// Milliseconds: between two clicks of an empty weapon, until it is put away, between two of the
// sounds that quad damage adds to shots.
constexpr float noAmmoSoundPause = 500;
constexpr float noAmmoChangeDelay = 800;
constexpr float quadSoundPause = 500;

bool isAmmo(int ammoId) {
    return ammoId >= 0 && ammoId < static_cast<int>(ammoTable().size());
}
bool isWeapon(int weaponId) {
    return weaponId >= 1 && weaponId <= weapon::last;
}
int ammoIdOfWeapon(int weaponId) {
    return weaponTable()[static_cast<std::size_t>(weaponId - 1)].ammoId;
}
bool isLoaded(int count) {
    return count > 0 || count == infiniteAmmo;
}

void showSelection(int weaponId) {
    if (GameHUD* hud = GameplaySingleton::instance().hud)
        hud->weaponSelected(weaponId);
}

}  // namespace

Inventory::Inventory(GameBody& owner) : owner_(owner) {}
Inventory::~Inventory() = default;

void Inventory::createWeapons() {
    weapons_[weapon::grapple] = std::make_unique<GrappleWeapon>();
    weapons_[weapon::pistol] = std::make_unique<PistolWeapon>();
    weapons_[weapon::plasmaGun] = std::make_unique<PlasmaWeapon>();
    weapons_[weapon::shotgun] = std::make_unique<ShotgunWeapon>();
    weapons_[weapon::chaingun] = std::make_unique<ChaingunWeapon>();
    weapons_[weapon::grenadeLauncher] = std::make_unique<GrenadeWeapon>();
    weapons_[weapon::rocketLauncher] = std::make_unique<RocketWeapon>();
    weapons_[weapon::railgun] = std::make_unique<RailgunWeapon>();
    weapons_[weapon::lightningGun] = std::make_unique<LightningWeapon>();
    weapons_[weapon::swarm] = std::make_unique<SwarmWeapon>();
}

void Inventory::ownStandardWeapons() {
    for (const int id : {weapon::grapple, weapon::pistol, weapon::swarm}) {
        owned_[static_cast<std::size_t>(id)] = 1;
        setAmmo(ammoIdOfWeapon(id), infiniteAmmo);
    }
}

void Inventory::resetForLevel() {
    if (weapons_[weapon::pistol] == nullptr)
        createWeapons();
    resetWeapons();
    ownStandardWeapons();
    applyDefinitions();
}

void Inventory::reset() {
    resetWeapons();
    owned_.fill(0);
    ammo_.fill(0);
    ownStandardWeapons();
    activeWeapon_ = weapon::pistol;
}

void Inventory::resetWeapons() {
    for (const auto& w : weapons_)
        if (w)
            w->reset();
    // Times of the last level mean nothing on this one's clock.
    nextNoAmmoSound_ = nextQuadFireSound_ = nextNoAmmoChange_ = 0;
    pendingWeapon_ = -1;
}

void Inventory::applyDefinitions() {
    for (const auto& w : weapons_)
        if (w)
            w->applyDefinitions();
}

FireableWeapon* Inventory::weaponObject(int weaponId) const {
    if (weaponId < 1 || weaponId > weapon::lastFiring)
        return nullptr;
    return weapons_[static_cast<std::size_t>(weaponId)].get();
}

void Inventory::fire(GameBody* shooter, const Vector& position, const Vector& aim, float time,
                     int weaponId) {
    FireableWeapon* const fired = weaponObject(weaponId);
    if (fired == nullptr || !owns(weaponId))
        return;
    const int count = ammoForWeapon(weaponId);
    if (!isLoaded(count)) {
        runEmpty(time);
        return;
    }
    if (!fired->fire(shooter, position, aim, time))
        return;
    if (count != infiniteAmmo)
        setAmmo(ammoIdOfWeapon(weaponId), fired->ammoAfterShot(count));
    nextNoAmmoSound_ = time + noAmmoSoundPause;
    if (shooter != nullptr && shooter->hasQuad && nextQuadFireSound_ < time) {
        playAtOwner(sound::quadFire);
        nextQuadFireSound_ = time + quadSoundPause;
    }
}

void Inventory::runEmpty(float time) {
    pendingWeapon_ = bestLoadedWeapon();
    if (nextNoAmmoChange_ <= 0)
        nextNoAmmoChange_ = time + noAmmoChangeDelay;
    if (nextNoAmmoSound_ < time) {
        nextNoAmmoSound_ = time + noAmmoSoundPause;
        playAtOwner(sound::noAmmo);
    }
}

int Inventory::bestLoadedWeapon() const {
    const auto ratingOf = [](int id) {
        return weaponTable()[static_cast<std::size_t>(id - 1)].rating;
    };
    int best = weapon::grapple;
    for (int id = weapon::lastFiring; id >= 1; --id)
        if (owns(id) && isLoaded(ammoForWeapon(id)) && ratingOf(id) > ratingOf(best))
            best = id;
    return best;
}

void Inventory::performDueChange(float time) {
    if (nextNoAmmoChange_ <= 0 || nextNoAmmoChange_ >= time)
        return;
    switchTo(pendingWeapon_);
    nextNoAmmoChange_ = 0;
}

void Inventory::unfire(int weaponId, float time) {
    if (FireableWeapon* w = weaponObject(weaponId))
        w->unfire(time);
}

void Inventory::unfireAll(float time) {
    for (int id = 1; id <= weapon::lastFiring; ++id)
        unfire(id, time);
}

void Inventory::selectNext() {
    step(1);
}

void Inventory::selectPrevious() {
    step(-1);
}

void Inventory::step(int direction) {
    int id = activeWeapon_;
    for (int tried = 0; tried < weapon::last; ++tried) {
        id += direction;
        if (id > weapon::last)
            id = 1;
        else if (id < 1)
            id = weapon::last;
        if (owns(id))
            break;
    }
    switchTo(id);
}

void Inventory::switchTo(int weaponId) {
    if (!isWeapon(weaponId))
        return;
    unfire(activeWeapon_, 0);
    showSelection(weaponId);
    if (weaponId == activeWeapon_)
        return;
    activeWeapon_ = weaponId;
    playAtOwner(sound::weaponChange);
    nextNoAmmoChange_ = 0;
}

void Inventory::selectByName(std::string_view name) {
    const int id = weaponIdOf(name);
    if (owns(id))
        switchTo(id);
    else
        showSelection(activeWeapon_);
}

void Inventory::addAmmo(int ammoId, int n) {
    const int count = ammo(ammoId);
    if (count == infiniteAmmo)
        return;
    const int cap = count > maxAmmo(ammoId) ? ammoLimit : std::max(maxAmmo(ammoId), 0);
    // Taking some away never makes it infinite.
    setAmmo(ammoId, std::clamp(saturated(0LL + count + n), 0, cap));
}

void Inventory::setAmmo(int ammoId, int n) {
    if (isAmmo(ammoId))
        ammo_[static_cast<std::size_t>(ammoId)] = n;
}

int Inventory::ammo(int ammoId) const {
    return isAmmo(ammoId) ? ammo_[static_cast<std::size_t>(ammoId)] : 0;
}

int Inventory::maxAmmo(int ammoId) const {
    return isAmmo(ammoId) ? ammoTable()[static_cast<std::size_t>(ammoId)].maximum : 0;
}

int Inventory::ammoForWeapon(int weaponId) const {
    const bool fires = weaponId >= 1 && weaponId <= weapon::lastFiring;
    return fires ? ammo(ammoIdOfWeapon(weaponId)) : 0;
}

bool Inventory::owns(int weaponId) const {
    return isWeapon(weaponId) && owned_[static_cast<std::size_t>(weaponId)] >= 1;
}

void Inventory::giveWeapon(int weaponId) {
    if (isWeapon(weaponId))
        owned_[static_cast<std::size_t>(weaponId)] = 1;
}

void Inventory::giveAllWeapons() {
    for (int id = 1; id <= weapon::lastFiring; ++id)
        giveWeapon(id);
}

void Inventory::giveAllAmmo() {
    for (int id = 1; id <= weapon::lastFiring; ++id) {
        const int ammoId = ammoIdOfWeapon(id);
        setAmmo(ammoId, maxAmmo(ammoId) == infiniteAmmo ? infiniteAmmo : ammoLimit);
    }
}

void Inventory::giveModest() {
    giveAllWeapons();
    for (int id = 1; id <= weapon::lastFiring; ++id)
        setAmmo(ammoIdOfWeapon(id), maxAmmo(ammoIdOfWeapon(id)));
}

void Inventory::playAtOwner(int soundId) const {
    playSoundAt(soundId, owner_.renderpos);
}

void Inventory::onBodyRemoved(const Body& gone) {
    for (const auto& w : weapons_)
        if (w)
            w->onBodyRemoved(gone);
}

}  // namespace bc
