// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/rules/GameBodyFactory.h"

#include "gameplay/actors/Gib.h"
#include "gameplay/objects/hazards/ExplodingBarrel.h"
#include "gameplay/objects/hazards/Liquid.h"
#include "gameplay/objects/hazards/PainBody.h"
#include "gameplay/objects/movers/AlphaDoor.h"
#include "gameplay/objects/movers/Attractor.h"
#include "gameplay/objects/movers/Door.h"
#include "gameplay/objects/movers/JumpPad.h"
#include "gameplay/objects/movers/Teleporter.h"
#include "gameplay/objects/pickups/AmmoBase.h"
#include "gameplay/objects/pickups/Armour.h"
#include "gameplay/objects/pickups/CashPickup.h"
#include "gameplay/objects/pickups/Health.h"
#include "gameplay/objects/pickups/PowerUps.h"
#include "gameplay/objects/pickups/ScreenWiper.h"
#include "gameplay/objects/pickups/WeaponBase.h"
#include "gameplay/objects/race/RaceBodies.h"
#include "gameplay/objects/scenery/ParticleSystemBody.h"
#include "gameplay/objects/scenery/Scenery.h"
#include "gameplay/objects/scenery/SoundBody.h"
#include "gameplay/objects/scenery/SpawnPoint.h"
#include "gameplay/objects/scenery/TextBody.h"
#include "gameplay/objects/triggers/Checkpoint.h"
#include "gameplay/objects/triggers/LevelChange.h"
#include "gameplay/objects/triggers/MessageBody.h"
#include "gameplay/objects/triggers/SkyTransition.h"
#include "gameplay/objects/triggers/Spawner.h"
#include "gameplay/objects/triggers/Switch.h"
#include "gameplay/objects/triggers/TargetGroup.h"
#include "gameplay/objects/triggers/Trigger.h"
#include "gameplay/objects/triggers/WaveController.h"
#include "gameplay/player/Player.h"
#include "gameplay/weapons/GrenadeProjectile.h"
#include "gameplay/weapons/RocketProjectile.h"
#include "gameplay/weapons/SwarmMember.h"

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
