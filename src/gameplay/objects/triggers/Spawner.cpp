// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/Spawner.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Rules.h"
#include "gameplay/actors/SoundIds.h"
#include "gameplay/actors/Spawning.h"
#include "particles/ParticleManager.h"
#include "ports/IGameplay.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

namespace bc {

Spawner::Spawner() {
    type = "spawner";
    thinks = true;
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

std::unique_ptr<Body> Spawner::create() const {
    return std::make_unique<Spawner>();
}

void Spawner::applyAttributes(const std::map<std::string, std::string>& attributes) {
    GameBody::applyAttributes(attributes);
    const Attributes given(attributes);
    given.read("spawnedtype", spawnedType);
    given.read("spawnlevel", spawnLevel);
    given.read("maxalive", maxAlive);
    given.read("spawndelay", spawnDelay);
    given.read("maxspawned", maxSpawned);
    given.read("untriggertimer", untriggerTime);
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
    if (child == nullptr)
        return;
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

void Spawner::loadState(const TiXmlElement& e) {
    GameBody::loadState(e);
    nextSpawn = xml::readFloat(e, "nextspawn");
    numSpawned = xml::readInt(e, "numspawned");
    active = xml::readBool(e, "active");
    triggered = xml::readBool(e, "triggered");
    untriggerAt = xml::readFloat(e, "untriggertime");
}

void Spawner::saveState(TiXmlElement& e) const {
    GameBody::saveState(e);
    xml::writeFloat(e, "nextspawn", nextSpawn);
    xml::writeInt(e, "numspawned", numSpawned);
    xml::writeBool(e, "active", active);
    xml::writeBool(e, "triggered", triggered);
    xml::writeFloat(e, "untriggertime", untriggerAt);
}

void Spawner::dumpState(TiXmlElement& debug) const {
    GameBody::dumpState(debug);
    xml::writeBool(debug, "active", active);
    xml::writeInt(debug, "numspawned", numSpawned);
    xml::writeInt(debug, "numalive", numAlive);
    xml::writeFloat(debug, "nextspawn", nextSpawn);
}

}  // namespace bc
