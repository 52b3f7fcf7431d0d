// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/LevelChange.h"

#include "command/GameVar.h"
#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/player/Player.h"
#include "particles/ParticleManager.h"
#include "ports/IGame.h"
#include "resources/FileSystem.h"
#include "world/TouchInfo.h"

namespace bc {

namespace {

/// Milliseconds between two attempts at a level that cannot be loaded.
constexpr float retryDelay = 2000;

void readMapName(const Attributes& given, const char* name, std::string& out) {
    std::string map;
    given.read(name, map);
    if (map.empty())
        return;
    out = map.find(".xml") == std::string::npos ? map + ".xml" : map;
}

void recordTime(const IGame& game, const Player& player) {
    const GameVar* record = vars().findVar("recordleveltimes");
    if (record == nullptr || record->intValue() <= 0)
        return;
    files::append("leveltimes.txt", game.getCurrentLevel() + " : " + game.getSaveName() + " : " +
                                        formatFloat(levelTime()) +
                                        " : Cash: " + std::to_string(player.progress.cash) + '\n');
}

}  // namespace

LevelChange::LevelChange() {
    type = "levelchange";
    category = category::levelChange;
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

std::unique_ptr<Body> LevelChange::create() const {
    return std::make_unique<LevelChange>();
}

void LevelChange::applyAttributes(const std::map<std::string, std::string>& attributes) {
    GameBody::applyAttributes(attributes);
    const Attributes given(attributes);
    readMapName(given, "leveltarget", levelTarget);
    readMapName(given, "demoleveltarget", demoLevelTarget);
    given.read("targetspawn", targetSpawn);
    given.read("iscutscene", isCutscene);
    given.read("cutscene", cutscene);
}

void LevelChange::onLoaded() {
    GameBody::onLoaded();
    startParticles("teleporter", pos);
}

void LevelChange::onTouch(const TouchInfo& info) {
    const auto* player = dynamic_cast<const Player*>(info.other);
    IGame* game = GameplaySingleton::instance().game();
    if (player == nullptr || game == nullptr)
        return;
    if (!game->isMapLoadPending()) {
        // Still here, so that the level could not be loaded: ask again at leisure.
        if (levelTime() < nextTry_)
            return;
        nextTry_ = levelTime() + retryDelay;
        recordTime(*game, *player);
    }
    if (isCutscene)
        game->showCutscene(cutscene);
    else
        game->requestMapLoad(levelTarget, targetSpawn);
}

}  // namespace bc
