// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/Spawner.h"

#include "core/Log.h"
#include "core/Text.h"
#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Rules.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/actors/Spawning.h"
#include "particles/ParticleManager.h"
#include "ports/IGameplay.h"
#include "world/BodyFields.h"

namespace bc {

Spawner::Spawner() {
    thinks = true;
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

void Spawner::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level().box(16, 16).with("entity", "true").with("visible", "false");
    f.param("spawnedtype", spawnedType, "Type of what it makes.")
        .kind(ParamKind::bodyType)
        .required();
    f.param("spawnlevel", spawnLevel, "Level of the enemies.");
    f.param("maxalive", maxAlive, "At once.").inLevels("1");
    f.param("spawndelay", spawnDelay, "Between two of them.").inLevels("2000");
    f.param("maxspawned", maxSpawned, "In all.");
    f.param("untriggertimer", untriggerTime, "Until it can be triggered again.");
    f.shown("active", active);
    f.shown("numspawned", numSpawned);
    f.shown("numalive", numAlive);
    f.kept("nextspawn", nextSpawn);
    f.saved("numspawned", numSpawned);
    f.saved("active", active);
    f.saved("triggered", triggered);
    f.saved("untriggertime", untriggerAt);
}

void Spawner::onTriggered(GameBody* /*activator*/) {
    if (triggered && levelTime() < untriggerAt)
        return;
    active = true;
    triggered = true;
    if (untriggerTime > 0)
        untriggerAt = levelTime() + untriggerTime;
    spawn();
}

void Spawner::onThink(float /*dt*/) {
    const float now = levelTime();
    if (triggered && untriggerAt < now)
        triggered = false;
    if (maxSpawned > 0 && numSpawned < maxSpawned && active && numAlive < maxAlive &&
        nextSpawn < now)
        spawn();
}

void Spawner::spawn() {
    Rules* rules = GameplaySingleton::instance().rules;
    if (rules == nullptr || equalsNoCase(spawnedType, "player"))
        return;
    std::unique_ptr<Body> made = rules->createBody(spawnedType);
    auto* child = dynamic_cast<GameBody*>(made.get());
    if (child == nullptr) {
        logLine("Spawner " + id + ": there is no body type \"" + spawnedType +
                "\" to spawn; nothing is made");
        return;
    }
    (void)made.release();
    std::unique_ptr<GameBody> owned(child);
    child->makeDefaultShape();
    child->computeBounds();
    child->entity = true;
    child->applyLevel(spawnLevel);
    child->adoptBy(*this);
    ++numSpawned;
    ++numAlive;
    nextSpawn = spawnDelay + levelTime();
    placeAt(*child, pos);
    child->onLoaded();
    addToWorld(std::move(owned));
    startParticles("itemrespawn2", pos);
    playSoundAt(sound::teleport, pos);
}

}  // namespace bc
