// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/GameBodyFactory.h"

#include "gameplay/Gib.h"
#include "gameplay/GrenadeProjectile.h"
#include "gameplay/ParticleSystemBody.h"
#include "gameplay/Player.h"
#include "gameplay/RocketProjectile.h"
#include "gameplay/SpawnPoint.h"
#include "gameplay/TextBody.h"

namespace bc {

namespace {

// In the order of registration; what is not in the tables loads as a plain body.
constexpr GameBodyType beforeEnemies[] = {
    {"player", "Player", makeBodyOf<Player>},
    {"spawnpoint", "SpawnPoint", makeBodyOf<SpawnPoint>},
    {"textbody", "TextBody", makeBodyOf<TextBody>},
    {"particlesystembody", "ParticleSystemBody", makeBodyOf<ParticleSystemBody>},
    {"namedpoint", "NamedPoint", makeBodyOf<NamedPoint>},
    {"grenadeprojectile", "GrenadeProjectile", makeBodyOf<GrenadeProjectile>},
    {"rocketprojectile", "RocketProjectile", makeBodyOf<RocketProjectile>},
    {"plasmapistolprojectile", "PlasmaPistolProjectile", makeBodyOf<PlasmaPistolProjectile>},
};

constexpr GameBodyType afterEnemies[] = {
    {"gib", "Gib", makeBodyOf<Gib>},
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
