// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/scenery/TeleporterVisual.h"

#include "gameplay/actors/GameCategories.h"
#include "particles/ParticleManager.h"
#include "world/BodyFields.h"

namespace bc {

TeleporterVisual::TeleporterVisual() {
    visible = false;
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

void TeleporterVisual::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level().box(16, 16).with("visible", "false");
}

void TeleporterVisual::onLoaded() {
    GameBody::onLoaded();
    startParticles("teleporter", pos);
}

}  // namespace bc
