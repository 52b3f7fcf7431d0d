// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/scenery/SpawnPoint.h"

#include "core/Text.h"
#include "gameplay/actors/GameCategories.h"
#include "particles/ParticleManager.h"
#include "world/BodyFields.h"

namespace bc {

SpawnPoint::SpawnPoint() {
    category = category::spawnPoint;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

void SpawnPoint::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level().box(16, 16).with("visible", "false");
    f.param("startpoint", startPoint, "The spawn point of the level when no other is named.");
    f.shown("startpoint", startPoint);
}

void SpawnPoint::appearanceEffect() const {
    startParticles("itemrespawn2", pos);
}

}  // namespace bc
