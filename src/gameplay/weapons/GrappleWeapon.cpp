// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/GrappleWeapon.h"

#include "core/Log.h"
#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/actors/Spawning.h"
#include "gameplay/weapons/GrappleHolder.h"
#include "gameplay/weapons/GrappleProjectile.h"
#include "gameplay/weapons/LauncherWeapons.h"
#include "gameplay/weapons/WeaponTable.h"

namespace bc {

bool GrappleWeapon::fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) {
    if (hook_ != nullptr || !canFire(time))
        return false;
    GrappleHolder* holder = playersGrapple();
    if (holder == nullptr) {
        logLine("NULL PLAYER for grappleweapon fire");
        return false;
    }
    auto hook = bodyPool().take<GrappleProjectile>();
    hook->solid = false;
    hook->gravitymultiplier = 0;
    GrappleProjectile* const launched = hook.get();
    nextFireTime = time + delay;
    if (!launch(std::move(hook), "grapple", shooter, position, aim))
        return false;
    holder->grappling = true;
    holder->grappleHook = hook_ = launched;
    playSoundAt(sound::grappleFire, position);
    return true;
}

void GrappleWeapon::unfire(float /*time*/) {
    if (hook_ != nullptr)
        removeFromWorld(*hook_);
    hook_ = nullptr;
    GrappleHolder* holder = playersGrapple();
    if (holder == nullptr) {
        logLine("NULL PLAYER for grappleweapon unfire");
        return;
    }
    holder->grappling = false;
    holder->grappleHook = nullptr;
}

void GrappleWeapon::reset() {
    FireableWeapon::reset();
    hook_ = nullptr;
}

int GrappleWeapon::ammoAfterShot(int /*count*/) const {
    return infiniteAmmo;
}

void GrappleWeapon::onBodyRemoved(const Body& gone) {
    if (hook_ == &gone)
        hook_ = nullptr;
}

}  // namespace bc
