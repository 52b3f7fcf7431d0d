// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/LevelChange.h"

#include "command/GameVar.h"
#include "core/Text.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/player/Player.h"
#include "particles/ParticleManager.h"
#include "ports/IGame.h"
#include "resources/FileSystem.h"
#include "world/BodyFields.h"
#include "world/TouchInfo.h"

namespace bc {

namespace {

/// Milliseconds between two attempts at a level that cannot be loaded.
constexpr float retryDelay = 2000;

/// A map's name with its ending; an empty one changes nothing.
void setMap(std::string& map, const std::string& given) {
    if (!given.empty())
        map = given.find(".xml") == std::string::npos ? given + ".xml" : given;
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
    category = category::levelChange;
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

void LevelChange::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level().box(32, 32).with("texture", "data/images/levelexit.png").with("texmap", "fit");
    const auto mapParam = [&f](const char* name, std::string& map, const char* meaning) {
        f.param(
             name, map, [&map](const std::string& given) { setMap(map, given); }, meaning)
            .kind(ParamKind::map);
    };
    mapParam("leveltarget", levelTarget, "Name of the level that it leads to.");
    mapParam("demoleveltarget", demoLevelTarget, "The level of the demonstration version.");
    f.param("targetspawn", targetSpawn,
            "Name of the spawn point in that level; its start point when empty.");
    f.param("iscutscene", isCutscene, "Shows the cutscene instead.");
    f.param("cutscene", cutscene, "File of the cutscene.").kind(ParamKind::cutscene);
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
