// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/InstantWeapons.h"

#include "core/Random.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/weapons/InstantShot.h"
#include "gameplay/weapons/WeaponDefinitions.h"
#include "particles/ParticleManager.h"
#include "ports/ISound.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

#include <algorithm>

namespace bc {

namespace {

// Mixing channels of enemies' firing sounds.
constexpr int enemyChannelA = 2;
constexpr int enemyChannelB = 3;

constexpr int chaingunSounds = 4;

template <class Definition>
void applyCommon(FireableWeapon& weapon, const Definition& d) {
    weapon.damage = d.damage;
    weapon.delay = d.delay;
    weapon.knockback = d.knockback;
    weapon.range = d.range;
}

void applyScatter(FireableWeapon& weapon, const WeaponDefinitions::Scatter& d) {
    applyCommon(weapon, d);
    weapon.spread = d.spread;
}

}  // namespace

bool PistolWeapon::fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) {
    if (!beginShot(time))
        return false;
    InstantShot shot(*this, shooter, position, aim, false);
    shot.traceFirst("pistol", shooter, damageBy(shooter), damage::pistol, knockback);
    shot.bulletEffects();
    startParticles("pistolflash", shot.start);
    playFiringSound(sound::pistolFire, enemyChannelA, position);
    return true;
}

void PistolWeapon::applyDefinitions() {
    applyCommon(*this, weaponDefinitions().pistol);
}

bool PlasmaWeapon::fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) {
    if (!beginShot(time))
        return false;
    InstantShot shot(*this, shooter, position, aim, true);
    shot.traceFirst("plasmagun", shooter, damageBy(shooter), damage::plasma, knockback);
    startBeam("plasma", shot.start, shot.end);
    playFiringSound(sound::plasmaFire, enemyChannelB, position);
    return true;
}

void PlasmaWeapon::applyDefinitions() {
    applyScatter(*this, weaponDefinitions().plasmaGun);
}

bool ShotgunWeapon::fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) {
    if (!beginShot(time))
        return false;
    const int points = damageBy(shooter);
    for (int i = 0; i < std::min(shots, maxShots); ++i) {
        InstantShot pellet(*this, shooter, position, aim, true);
        pellet.traceFirst("shotgun", shooter, points, damage::shotgun, knockback);
        pellet.bulletEffects();
    }
    startParticles("shotgunflash", muzzleOf(shooter, position, aim, InstantShot::muzzleInset));
    playFiringSound(sound::shotgunFire, enemyChannelB, position);
    return true;
}

void ShotgunWeapon::applyDefinitions() {
    applyScatter(*this, weaponDefinitions().shotgun);
    shots = weaponDefinitions().shotgun.numShots;
}

void ShotgunWeapon::dumpState(TiXmlElement& e) const {
    FireableWeapon::dumpState(e);
    xml::writeInt(e, "shots", shots);
}

bool ChaingunWeapon::fire(GameBody* shooter, const Vector& position, const Vector& aim,
                          float time) {
    if (!beginShot(time))
        return false;
    InstantShot shot(*this, shooter, position, aim, true);
    shot.traceFirst("chaingun", shooter, damageBy(shooter), damage::chaingun, knockback);
    shot.bulletEffects();
    startParticles("chaingunflash", shot.start);
    const int r = randomInt() % chaingunSounds;
    playFiringSound(sound::chaingunFire + r, r % 2 == 0 ? enemyChannelA : enemyChannelB, position);
    return true;
}

void ChaingunWeapon::applyDefinitions() {
    applyScatter(*this, weaponDefinitions().chaingun);
}

bool RailgunWeapon::fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) {
    if (!beginShot(time))
        return false;
    InstantShot shot(*this, shooter, position, aim, false);
    shot.traceThrough("railgun", shooter, damageBy(shooter), damage::rail, knockback);
    startBeam("rail", shot.start, shot.end);
    playFiringSound(sound::railFire, enemyChannelA, position);
    return true;
}

void RailgunWeapon::applyDefinitions() {
    applyCommon(*this, weaponDefinitions().railgun);
}

LightningWeapon::~LightningWeapon() {
    if (GameplaySingleton::exists())
        stopHum();
}

bool LightningWeapon::fire(GameBody* shooter, const Vector& position, const Vector& aim,
                           float time) {
    if (!beginShot(time))
        return false;
    InstantShot shot(*this, shooter, position, aim, true);
    shot.traceFirst("lightninggun", shooter, damageBy(shooter), damage::lightning, knockback);
    startBeam("lightning", shot.start, shot.end);
    startHum(position);
    return true;
}

void LightningWeapon::startHum(const Vector& position) {
    ISound* sounds = GameplaySingleton::instance().sound();
    if (soundPlaying || sounds == nullptr)
        return;
    soundChannel = sounds->playIdOnChannelAt(sound::lightningLoop, -1, position, -1);
    soundPlaying = true;
}

void LightningWeapon::stopHum() {
    ISound* sounds = GameplaySingleton::instance().sound();
    if (soundChannel >= 0 && sounds != nullptr)
        sounds->stopChannel(soundChannel);
    soundChannel = -1;
    soundPlaying = false;
}

void LightningWeapon::unfire(float /*time*/) {
    stopHum();
}

void LightningWeapon::reset() {
    FireableWeapon::reset();
    stopHum();
}

void LightningWeapon::applyDefinitions() {
    applyScatter(*this, weaponDefinitions().lightningGun);
}

void LightningWeapon::dumpState(TiXmlElement& e) const {
    FireableWeapon::dumpState(e);
    xml::writeInt(e, "soundchannel", soundChannel);
    xml::writeBool(e, "soundplaying", soundPlaying);
}

}  // namespace bc
