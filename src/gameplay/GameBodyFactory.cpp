// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/GameBodyFactory.h"

#include "gameplay/AlphaDoor.h"
#include "gameplay/AmmoBase.h"
#include "gameplay/Armour.h"
#include "gameplay/Attractor.h"
#include "gameplay/CashPickup.h"
#include "gameplay/Checkpoint.h"
#include "gameplay/Door.h"
#include "gameplay/ExplodingBarrel.h"
#include "gameplay/Gib.h"
#include "gameplay/GrenadeProjectile.h"
#include "gameplay/Health.h"
#include "gameplay/JumpPad.h"
#include "gameplay/LevelChange.h"
#include "gameplay/Liquid.h"
#include "gameplay/MessageBody.h"
#include "gameplay/PainBody.h"
#include "gameplay/ParticleSystemBody.h"
#include "gameplay/Player.h"
#include "gameplay/PowerUps.h"
#include "gameplay/RaceBodies.h"
#include "gameplay/RocketProjectile.h"
#include "gameplay/Scenery.h"
#include "gameplay/ScreenWiper.h"
#include "gameplay/SkyTransition.h"
#include "gameplay/SoundBody.h"
#include "gameplay/SpawnPoint.h"
#include "gameplay/Spawner.h"
#include "gameplay/SwarmMember.h"
#include "gameplay/Switch.h"
#include "gameplay/TargetGroup.h"
#include "gameplay/Teleporter.h"
#include "gameplay/TextBody.h"
#include "gameplay/Trigger.h"
#include "gameplay/WaveController.h"
#include "gameplay/WeaponBase.h"

namespace bc {

namespace {

/// For classes that serve several types.
template <class T>
std::unique_ptr<Body> makeNamed(const char* typeName) {
    return std::make_unique<T>(typeName);
}

// In the order of registration; what is not in the tables loads as a plain body.
constexpr GameBodyType beforeEnemies[] = {
    {"detail", "DetailBody", makeBodyOf<DetailBody>},
    {"clip", "Clip", makeBodyOf<Clip>},
    {"cashpickup", "CashPickup", makeBodyOf<CashPickup>},
    {"health", "Health", makeBodyOf<Health>},
    {"quickhealth", "QuickHealth", makeBodyOf<QuickHealth>},
    {"megahealth", "MegaHealth", makeBodyOf<MegaHealth>},
    {"armour", "Armour", makeBodyOf<Armour>},
    {"quickarmour", "QuickArmour", makeBodyOf<QuickArmour>},
    {"quad", "QuadDamage", makeBodyOf<QuadDamage>},
    {"megaquad", "MegaQuadDamage", makeBodyOf<MegaQuadDamage>},
    {"invincibility", "Invincibility", makeBodyOf<Invincibility>},
    {"screenwiper", "ScreenWiper", makeBodyOf<ScreenWiper>},
    {"player", "Player", makeBodyOf<Player>},
    {"spawnpoint", "SpawnPoint", makeBodyOf<SpawnPoint>},
    {"levelchange", "LevelChange", makeBodyOf<LevelChange>},
    {"door", "Door", makeBodyOf<Door>},
    {"alphadoor", "AlphaDoor", makeBodyOf<AlphaDoor>},
    {"switch", "Switch", makeBodyOf<Switch>},
    {"trigger", "Trigger", makeBodyOf<Trigger>},
    {"wavecontroller", "WaveController", makeBodyOf<WaveController>},
    {"messagebody", "MessageBody", makeBodyOf<MessageBody>},
    {"messengerbody", "MessengerBody", makeBodyOf<MessengerBody>},
    {"soundbody", "SoundBody", makeBodyOf<SoundBody>},
    {"jumppad", "JumpPad", makeBodyOf<JumpPad>},
    {"triggeredjumppad", "TriggeredJumpPad", makeBodyOf<TriggeredJumpPad>},
    {"teleporter", "Teleporter", makeBodyOf<Teleporter>},
    {"teleportervisual", "TeleporterVisual", makeBodyOf<TeleporterVisual>},
    {"water", "Water", makeBodyOf<Water>},
    {"lava", "Lava", makeBodyOf<Lava>},
    {"textbody", "TextBody", makeBodyOf<TextBody>},
    {"spawner", "Spawner", makeBodyOf<Spawner>},
    {"battery", "Battery", makeBodyOf<Battery>},
    {"batteryslot", "BatterySlot", makeBodyOf<BatterySlot>},
    {"explodingbarrel", "ExplodingBarrel", makeBodyOf<ExplodingBarrel>},
    {"attractor", "Attractor", makeBodyOf<Attractor>},
    {"painbody", "PainBody", makeBodyOf<PainBody>},
    {"particlesystembody", "ParticleSystemBody", makeBodyOf<ParticleSystemBody>},
    {"checkpoint", "Checkpoint", makeBodyOf<Checkpoint>},
    {"skytransition", "SkyTransition", makeBodyOf<SkyTransition>},
    {"skyinfo", "SkyInfo", makeBodyOf<SkyInfo>},
    {"namedpoint", "NamedPoint", makeBodyOf<NamedPoint>},
    {"targetgroup", "TargetGroup", makeBodyOf<TargetGroup>},
    {"rocketlauncher", "WeaponBase", [] { return makeNamed<WeaponBase>("rocketlauncher"); }},
    {"grenadelauncher", "WeaponBase", [] { return makeNamed<WeaponBase>("grenadelauncher"); }},
    {"shotgun", "WeaponBase", [] { return makeNamed<WeaponBase>("shotgun"); }},
    {"chaingun", "WeaponBase", [] { return makeNamed<WeaponBase>("chaingun"); }},
    {"railgun", "WeaponBase", [] { return makeNamed<WeaponBase>("railgun"); }},
    {"lightninggun", "WeaponBase", [] { return makeNamed<WeaponBase>("lightninggun"); }},
    {"plasmagun", "WeaponBase", [] { return makeNamed<WeaponBase>("plasmagun"); }},
    {"rocketlauncherammo", "AmmoBase", [] { return makeNamed<AmmoBase>("rocketlauncherammo"); }},
    {"grenadelauncherammo", "AmmoBase", [] { return makeNamed<AmmoBase>("grenadelauncherammo"); }},
    {"shotgunammo", "AmmoBase", [] { return makeNamed<AmmoBase>("shotgunammo"); }},
    {"chaingunammo", "AmmoBase", [] { return makeNamed<AmmoBase>("chaingunammo"); }},
    {"railgunammo", "AmmoBase", [] { return makeNamed<AmmoBase>("railgunammo"); }},
    {"lightninggunammo", "AmmoBase", [] { return makeNamed<AmmoBase>("lightninggunammo"); }},
    {"plasmagunammo", "AmmoBase", [] { return makeNamed<AmmoBase>("plasmagunammo"); }},
    {"grenadeprojectile", "GrenadeProjectile", makeBodyOf<GrenadeProjectile>},
    {"rocketprojectile", "RocketProjectile", makeBodyOf<RocketProjectile>},
    {"plasmapistolprojectile", "PlasmaPistolProjectile", makeBodyOf<PlasmaPistolProjectile>},
};

constexpr GameBodyType afterEnemies[] = {
    {"swarmmember", "SwarmMember", makeBodyOf<SwarmMember>},
    {"gib", "Gib", makeBodyOf<Gib>},
    {"racecheckpoint", "RaceCheckpoint", makeBodyOf<RaceCheckpoint>},
    {"racestart", "RaceStart", makeBodyOf<RaceStart>},
    {"raceend", "RaceEnd", makeBodyOf<RaceEnd>},
    {"raceendblock", "RaceEndBlock", makeBodyOf<RaceEndBlock>},
    {"raceblock", "RaceBlock", makeBodyOf<RaceBlock>},
    {"racereset", "RaceReset", makeBodyOf<RaceReset>},
    {"debugmoveable", "DebugMoveable", makeBodyOf<DebugMoveable>},
};

}  // namespace

std::span<const GameBodyType> GameBodyFactory::typesBeforeEnemies() {
    return beforeEnemies;
}

std::span<const GameBodyType> GameBodyFactory::typesAfterEnemies() {
    return afterEnemies;
}

void GameBodyFactory::registerDefaults() {
    for (const auto& types : {typesBeforeEnemies(), enemyTypes_, typesAfterEnemies()})
        for (const GameBodyType& row : types) {
            std::unique_ptr<Body> prototype = row.make();
            prototype->type = row.name;
            registerPrototype(std::move(prototype));
        }
}

}  // namespace bc
