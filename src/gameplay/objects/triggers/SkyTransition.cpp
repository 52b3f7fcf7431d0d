// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/SkyTransition.h"

#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "ports/IGame.h"
#include "sky/SkyManager.h"
#include "world/BodyFields.h"
#include "world/TouchInfo.h"

#include <vector>

namespace bc {

namespace {

SkyManager* skyManager() {
    IGame* game = GameplaySingleton::instance().game();
    return game != nullptr ? game->getSkyManager() : nullptr;
}

}  // namespace

SkyTransition::SkyTransition() {}

void SkyTransition::fields(BodyFields& f) {
    TriggerBody::fields(f);
    f.level().with("visible", "false");
    f.param("sky", sky, "Name of the sky.").kind(ParamKind::sky).required();
}

void SkyTransition::onTouch(const TouchInfo& info) {
    if (!isReadyFor(info))
        return;
    arm();
    if (SkyManager* manager = skyManager())
        manager->switchSkyByName(sky);
}

}  // namespace bc
