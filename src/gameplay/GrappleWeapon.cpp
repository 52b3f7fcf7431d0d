// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/GrappleWeapon.h"

#include "core/Log.h"
#include "gameplay/Effects.h"
#include "gameplay/GameplaySingleton.h"
#include "gameplay/GrappleProjectile.h"
#include "gameplay/LauncherWeapons.h"
#include "gameplay/Player.h"
#include "gameplay/SoundIds.h"
#include "gameplay/Spawning.h"
#include "gameplay/WeaponTable.h"

namespace bc {

bool GrappleWeapon::fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) {
    if (hook_ != nullptr || !canFire(time))
        return false;
    Player* player = GameplaySingleton::instance().player();
    if (player == nullptr) {
        logLine("NULL PLAYER for grappleweapon fire");
        return false;
    }
    auto hook = GameplaySingleton::instance().bodyPool.take<GrappleProjectile>();
    hook->solid = false;
    hook->gravitymultiplier = 0;
    GrappleProjectile* const launched = hook.get();
    nextFireTime = time + delay;
    if (!launch(std::move(hook), "grapple", shooter, position, aim))
        return false;
    player->grappling = true;
    player->grappleHook = hook_ = launched;
    playSoundAt(sound::grappleFire, position);
    return true;
}

void GrappleWeapon::unfire(float /*time*/) {
    if (hook_ != nullptr)
        removeFromWorld(*hook_);
    hook_ = nullptr;
    Player* player = GameplaySingleton::instance().player();
    if (player == nullptr) {
        logLine("NULL PLAYER for grappleweapon unfire");
        return;
    }
    player->grappling = false;
    player->grappleHook = nullptr;
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
