// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/SkyTransition.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "ports/IGame.h"
#include "sky/SkyManager.h"
#include "world/TouchInfo.h"

#include <vector>

namespace bc {

namespace {

SkyManager* skyManager() {
    IGame* game = GameplaySingleton::instance().game();
    return game != nullptr ? game->getSkyManager() : nullptr;
}

}  // namespace

SkyTransition::SkyTransition() {
    type = "skytransition";
}

std::unique_ptr<Body> SkyTransition::create() const {
    return std::make_unique<SkyTransition>();
}

void SkyTransition::applyAttributes(const std::map<std::string, std::string>& attributes) {
    TriggerBody::applyAttributes(attributes);
    Attributes(attributes).read("sky", sky);
}

void SkyTransition::onTouch(const TouchInfo& info) {
    if (!isReadyFor(info))
        return;
    arm();
    if (SkyManager* manager = skyManager())
        manager->switchSkyByName(sky);
}

SkyInfo::SkyInfo() {
    type = "skyinfo";
    visible = false;
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

std::unique_ptr<Body> SkyInfo::create() const {
    return std::make_unique<SkyInfo>();
}

void SkyInfo::applyAttributes(const std::map<std::string, std::string>& attributes) {
    GameBody::applyAttributes(attributes);
    const Attributes given(attributes);
    given.read("skies", skies);
    given.read("initialsky", initialSky);
}

void SkyInfo::onLoaded() {
    GameBody::onLoaded();
    SkyManager* manager = skyManager();
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
