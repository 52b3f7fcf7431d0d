// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/rules/BodyTypes.h"

#include "gameplay/actors/Gib.h"
#include "gameplay/objects/hazards/ExplodingBarrel.h"
#include "gameplay/objects/hazards/Lava.h"
#include "gameplay/objects/hazards/PainBody.h"
#include "gameplay/objects/hazards/Water.h"
#include "gameplay/objects/movers/AlphaDoor.h"
#include "gameplay/objects/movers/Attractor.h"
#include "gameplay/objects/movers/Battery.h"
#include "gameplay/objects/movers/DebugMoveable.h"
#include "gameplay/objects/movers/Door.h"
#include "gameplay/objects/movers/JumpPad.h"
#include "gameplay/objects/movers/Teleporter.h"
#include "gameplay/objects/movers/TriggeredJumpPad.h"
#include "gameplay/objects/pickups/AmmoBase.h"
#include "gameplay/objects/pickups/Armour.h"
#include "gameplay/objects/pickups/CashPickup.h"
#include "gameplay/objects/pickups/Health.h"
#include "gameplay/objects/pickups/Invincibility.h"
#include "gameplay/objects/pickups/MegaHealth.h"
#include "gameplay/objects/pickups/MegaQuadDamage.h"
#include "gameplay/objects/pickups/QuadDamage.h"
#include "gameplay/objects/pickups/QuickArmour.h"
#include "gameplay/objects/pickups/QuickHealth.h"
#include "gameplay/objects/pickups/ScreenWiper.h"
#include "gameplay/objects/pickups/WeaponBase.h"
#include "gameplay/objects/race/RaceBlock.h"
#include "gameplay/objects/race/RaceCheckpoint.h"
#include "gameplay/objects/race/RaceEnd.h"
#include "gameplay/objects/race/RaceEndBlock.h"
#include "gameplay/objects/race/RaceReset.h"
#include "gameplay/objects/race/RaceStart.h"
#include "gameplay/objects/scenery/Clip.h"
#include "gameplay/objects/scenery/DetailBody.h"
#include "gameplay/objects/scenery/NamedPoint.h"
#include "gameplay/objects/scenery/ParticleSystemBody.h"
#include "gameplay/objects/scenery/SkyInfo.h"
#include "gameplay/objects/scenery/SoundBody.h"
#include "gameplay/objects/scenery/SpawnPoint.h"
#include "gameplay/objects/scenery/TeleporterVisual.h"
#include "gameplay/objects/scenery/TextBody.h"
#include "gameplay/objects/triggers/BatterySlot.h"
#include "gameplay/objects/triggers/Checkpoint.h"
#include "gameplay/objects/triggers/LevelChange.h"
#include "gameplay/objects/triggers/MessageBody.h"
#include "gameplay/objects/triggers/MessengerBody.h"
#include "gameplay/objects/triggers/SkyTransition.h"
#include "gameplay/objects/triggers/Spawner.h"
#include "gameplay/objects/triggers/Switch.h"
#include "gameplay/objects/triggers/TargetGroup.h"
#include "gameplay/objects/triggers/Trigger.h"
#include "gameplay/objects/triggers/WaveController.h"
#include "gameplay/player/Player.h"
#include "gameplay/weapons/GrenadeProjectile.h"
#include "gameplay/weapons/PlasmaPistolProjectile.h"
#include "gameplay/weapons/RocketProjectile.h"
#include "gameplay/weapons/SwarmMember.h"

namespace bc {

namespace {

template <class T>
std::unique_ptr<Body> makeBodyOf() {
    return std::make_unique<T>();
}

/// For classes that serve several types.
template <class T>
std::unique_ptr<Body> makeNamed(const char* typeName) {
    return std::make_unique<T>(typeName);
}

constexpr BodyUse uses[] = {
    {"geometry", "#6a7a9c", "What the craft flies between."},
    {"scenery", "#4a5a7c", "Looks only; nothing collides with it."},
    {"pickup", "#3dff7a", "Collected by touch."},
    {"weapon", "#ffe9a0", "A weapon to collect."},
    {"ammo", "#c8b060", "Ammunition to collect."},
    {"marker", "#58e0ff", "Places that others refer to."},
    {"trigger", "#c08bff", "Starts or relays events by firing its targets."},
    {"door", "#ffb020", "Opens when it is triggered."},
    {"object", "#8fe8ff", "Moves, hurts or informs what touches it."},
    {"liquid", "#1fd0c0", "Slows down what is in it."},
    {"enemy", "#ff5a4a", "Hunts or hinders the player."},
    {"ally", "#5dff9a", "Fights beside the player."},
    {"race", "#ffd25a", "Parts of a timed course."},
    {"movable", "#9fb6ff", "Can be pushed about."},
    {"runtime", "#808080", "Made by the game alone; not for levels."},
};

constexpr BodyTypeRow plain = {
    "default", "geometry", makeBodyOf<Body>, "Solid level geometry.",
    [](LevelNotes level) { level.canBeCut().with("solid", "true").with("colour", "#ff171a33"); }};

// In the order of registration. What is not in the table loads as a plain body.
constexpr BodyTypeRow types[] = {
    {"detail", "scenery", makeBodyOf<DetailBody>, "Decoration in front of or behind the level."},
    {"clip", "geometry", makeBodyOf<Clip>, "Invisible wall; doors pass through it."},
    {"cashpickup", "pickup", makeBodyOf<CashPickup>,
     "Cash, which raises the upgrade level; never comes back."},
    {"health", "pickup", makeBodyOf<Health>, "Gives health up to the maximum."},
    {"quickhealth", "pickup", makeBodyOf<QuickHealth>, "A little health."},
    {"megahealth", "pickup", makeBodyOf<MegaHealth>, "Fills health to the maximum."},
    {"armour", "pickup", makeBodyOf<Armour>, "Gives armour up to the maximum."},
    {"quickarmour", "pickup", makeBodyOf<QuickArmour>, "A little armour."},
    {"quad", "pickup", makeBodyOf<QuadDamage>, "Four times the damage for 30 seconds."},
    {"megaquad", "pickup", makeBodyOf<MegaQuadDamage>, "Eight times the damage for 30 seconds."},
    {"invincibility", "pickup", makeBodyOf<Invincibility>, "No damage for 30 seconds."},
    {"screenwiper", "pickup", makeBodyOf<ScreenWiper>, "Kills the enemies within 350 units."},
    {"player", "runtime", makeBodyOf<Player>, "The player craft."},
    {"spawnpoint", "marker", makeBodyOf<SpawnPoint>,
     "Where the player appears. A level needs one with startpoint."},
    {"levelchange", "object", makeBodyOf<LevelChange>, "Leads to another level or to a cutscene."},
    {"door", "door", makeBodyOf<Door>, "Slides away when it is triggered, and back."},
    {"alphadoor", "door", makeBodyOf<AlphaDoor>, "Vanishes when it is triggered, and comes back."},
    {"switch", "trigger", makeBodyOf<Switch>,
     "Fires its targets at the player's touch and shows that it did."},
    {"trigger", "trigger", makeBodyOf<Trigger>, "Fires its targets at the player's touch."},
    {"wavecontroller", "trigger", makeBodyOf<WaveController>,
     "Triggers objects at the times of a wave file, counted from when it is triggered."},
    {"messagebody", "trigger", makeBodyOf<MessageBody>,
     "Shows a message at the player's touch and fires its targets."},
    {"messengerbody", "trigger", makeBodyOf<MessengerBody>,
     "Shows a message when it is triggered."},
    {"soundbody", "object", makeBodyOf<SoundBody>,
     "Plays a sound while the player is within 528 units."},
    {"jumppad", "object", makeBodyOf<JumpPad>, "Throws what touches it."},
    {"triggeredjumppad", "object", makeBodyOf<TriggeredJumpPad>,
     "A jump pad that is switched by triggers."},
    {"teleporter", "object", makeBodyOf<Teleporter>, "Moves what touches it to its first target."},
    {"teleportervisual", "scenery", makeBodyOf<TeleporterVisual>,
     "The particles of a teleporter without one."},
    {"water", "liquid", makeBodyOf<Water>, "Water: slows down, and moves in waves."},
    {"lava", "liquid", makeBodyOf<Lava>, "Lava: slows down and hurts 10 every 200 ms."},
    {"textbody", "scenery", makeBodyOf<TextBody>,
     "A text in the world, at its left edge and half height."},
    {"spawner", "object", makeBodyOf<Spawner>, "Makes bodies of one type once it is triggered."},
    {"battery", "movable", makeBodyOf<Battery>, "A charge to carry to a battery slot."},
    {"batteryslot", "trigger", makeBodyOf<BatterySlot>,
     "Fires its targets when a battery touches it."},
    {"explodingbarrel", "movable", makeBodyOf<ExplodingBarrel>,
     "Explodes when it is hurt, and fires its targets."},
    {"attractor", "object", makeBodyOf<Attractor>, "Pulls movable bodies towards itself."},
    {"painbody", "object", makeBodyOf<PainBody>,
     "Hurts what touches it, every 100 ms; its picture drifts while it is on."},
    {"particlesystembody", "scenery", makeBodyOf<ParticleSystemBody>, "Runs a particle system."},
    {"checkpoint", "trigger", makeBodyOf<Checkpoint>,
     "Saves the game at the player's touch, or when it is triggered."},
    {"skytransition", "trigger", makeBodyOf<SkyTransition>,
     "Changes the sky at the player's touch."},
    {"skyinfo", "marker", makeBodyOf<SkyInfo>, "The skies of the level; one object a level."},
    {"namedpoint", "marker", makeBodyOf<NamedPoint>,
     "A place with a name, for warpto and as a target."},
    {"targetgroup", "trigger", makeBodyOf<TargetGroup>, "Passes a trigger on to its own targets."},
    {"rocketlauncher", "weapon", [] { return makeNamed<WeaponBase>("rocketlauncher"); },
     "Rocket launcher."},
    {"grenadelauncher", "weapon", [] { return makeNamed<WeaponBase>("grenadelauncher"); },
     "Grenade launcher."},
    {"shotgun", "weapon", [] { return makeNamed<WeaponBase>("shotgun"); }, "Shotgun."},
    {"chaingun", "weapon", [] { return makeNamed<WeaponBase>("chaingun"); }, "Chaingun."},
    {"railgun", "weapon", [] { return makeNamed<WeaponBase>("railgun"); }, "Railgun."},
    {"lightninggun", "weapon", [] { return makeNamed<WeaponBase>("lightninggun"); },
     "Lightning gun."},
    {"plasmagun", "weapon", [] { return makeNamed<WeaponBase>("plasmagun"); }, "Plasma gun."},
    {"rocketlauncherammo", "ammo", [] { return makeNamed<AmmoBase>("rocketlauncherammo"); },
     "Rockets.", [](LevelNotes level) { level.with("ammo", "5"); }},
    {"grenadelauncherammo", "ammo", [] { return makeNamed<AmmoBase>("grenadelauncherammo"); },
     "Grenades.", [](LevelNotes level) { level.with("ammo", "5"); }},
    {"shotgunammo", "ammo", [] { return makeNamed<AmmoBase>("shotgunammo"); }, "Shells."},
    {"chaingunammo", "ammo", [] { return makeNamed<AmmoBase>("chaingunammo"); }, "Bullets.",
     [](LevelNotes level) { level.with("ammo", "50"); }},
    {"railgunammo", "ammo", [] { return makeNamed<AmmoBase>("railgunammo"); }, "Rails.",
     [](LevelNotes level) { level.with("ammo", "5"); }},
    {"lightninggunammo", "ammo", [] { return makeNamed<AmmoBase>("lightninggunammo"); },
     "Charge of the lightning gun.", [](LevelNotes level) { level.with("ammo", "50"); }},
    {"plasmagunammo", "ammo", [] { return makeNamed<AmmoBase>("plasmagunammo"); }, "Plasma.",
     [](LevelNotes level) { level.with("ammo", "50"); }},
    {"grenadeprojectile", "runtime", makeBodyOf<GrenadeProjectile>, "A grenade in flight."},
    {"rocketprojectile", "runtime", makeBodyOf<RocketProjectile>, "A rocket in flight."},
    {"plasmapistolprojectile", "runtime", makeBodyOf<PlasmaPistolProjectile>,
     "An enemy plasma shot in flight."},
    {"swarmmember", "runtime", makeBodyOf<SwarmMember>, "Released by the player's swarm."},
    {"gib", "runtime", makeBodyOf<Gib>, "A fragment of something that died violently."},
    {"racecheckpoint", "race", makeBodyOf<RaceCheckpoint>, "Tells the time of the race."},
    {"racestart", "race", makeBodyOf<RaceStart>, "Starts the race and its clock."},
    {"raceend", "race", makeBodyOf<RaceEnd>, "Ends the race."},
    {"raceendblock", "race", makeBodyOf<RaceEndBlock>,
     "Ends the race once every block has touched it."},
    {"raceblock", "race", makeBodyOf<RaceBlock>, "A block to push into a goal."},
    {"racereset", "race", makeBodyOf<RaceReset>, "Ends the race and puts the blocks back."},
    {"debugmoveable", "movable", makeBodyOf<DebugMoveable>, "A block to push about."},
};

}  // namespace

const BodyTypeRow& plainBodyType() {
    return plain;
}

std::span<const BodyTypeRow> bodyTypes() {
    return types;
}

std::span<const BodyUse> bodyUses() {
    return uses;
}

}  // namespace bc
