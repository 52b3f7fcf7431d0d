// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/scenery/SkyInfo.h"

#include "core/Text.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "ports/IGame.h"
#include "sky/SkyManager.h"
#include "world/BodyFields.h"

namespace bc {

SkyInfo::SkyInfo() {
    visible = false;
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

void SkyInfo::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level().box(16, 16).with("visible", "false");
    f.param("skies", skies, "Names of the skies, separated by commas.")
        .kind(ParamKind::skies)
        .required();
    f.param("initialsky", initialSky, "The one to begin with.").kind(ParamKind::sky).required();
}

void SkyInfo::onLoaded() {
    GameBody::onLoaded();
    IGame* game = GameplaySingleton::instance().game();
    SkyManager* manager = game != nullptr ? game->getSkyManager() : nullptr;
    if (manager == nullptr)
        return;
    manager->unloadAll();
    std::vector<std::string> names;
    tokenise(",", skies, names);
    for (const std::string& name : names)
        manager->loadSkyByName(name);
    if (!initialSky.empty())
        manager->switchSkyByName(initialSky);
}

}  // namespace bc
