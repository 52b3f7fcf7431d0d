// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/SaveGames.h"

#include "app/AppVariables.h"
#include "app/LevelSession.h"
#include "app/Pause.h"
#include "app/ScreenOverlay.h"
#include "app/Stepper.h"
#include "app/Subsystems.h"
#include "command/CommandRegistry.h"
#include "core/Log.h"
#include "core/Random.h"
#include "core/Text.h"
#include "gameplay/player/Player.h"
#include "ports/IGameplay.h"
#include "ports/IRenderer.h"
#include "resources/FileSystem.h"
#include "resources/ResourceManager.h"
#include "resources/XmlAttributes.h"
#include "sky/BaseSky.h"
#include "world/BodyFactory.h"
#include "world/LevelLoader.h"
#include "world/WorldOrder.h"

#include <tinyxml.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace bc {

namespace {

constexpr int saveVersion = 2;
/// Of 1 (easy) to 4, for saves that do not say theirs.
constexpr int usualDifficulty = 3;
/// Pixels.
constexpr int thumbnailWidth = 320;
constexpr int thumbnailHeight = 240;

std::string savePath(const std::string& name, const char* ending) {
    return "saves/" + name + ending;
}

}  // namespace

SaveGames::SaveGames(Subsystems& subsystems, const AppVariables& variables, LevelSession& levels,
                     const Pause& pause, ScreenOverlay& overlay)
    : subsystems_(subsystems),
      vars_(variables),
      levels_(levels),
      pause_(pause),
      overlay_(overlay) {}

void SaveGames::registerCommands() {
    CommandRegistry& c = commands();
    c.registerCommand("save game", "savegame",
                      [this] { requestSaveAs(commands().arg(0, "temp")); });
    c.registerCommand("load game", "loadgame", [this] { loadGame(commands().arg(0, "temp")); });
}

void SaveGames::requestSaveAs(const std::string& name) {
    if (!savePending_)
        lastSaveName_ = saveName_;
    saveName_ = name;
    savePending_ = true;
}

void SaveGames::requestLoadGame(const std::string& name) {
    if (!loadPending_)
        lastSaveName_ = saveName_;
    saveName_ = name;
    loadPending_ = true;
    overlay_.startFadeIn();
}

void SaveGames::saveGame() {
    savePending_ = false;
    if (saveName_.empty())
        saveName_ = "temp";
    const std::string path = savePath(saveName_, ".xml");
    logLine("Saving save game: " + path);
    if (!files::isSafeName(path) || !levels_.isLevelLoaded()) {
        consolePrint(levels_.isLevelLoaded() ? "Can't save under the name: " + saveName_
                                             : std::string("Can't save: no level is running"));
        saveName_ = lastSaveName_;
        return;
    }
    IGameplay& gameplay = subsystems_.gameplay();
    const World& world = subsystems_.world();
    gameplay.beforeSave();
    TiXmlDocument document;
    auto* root = document.LinkEndChild(new TiXmlElement("save"))->ToElement();
    xml::writeInt(*root, "version", saveVersion);
    xml::writeString(*root, "currentlevel", levels_.getCurrentLevel());
    xml::writeInt(*root, "nextbodyid", world.nextBodyId());
    xml::writeInt(*root, "difficulty", std::clamp(vars_.difficulty->intValue(), 1, 4));
    gameplay.saveGameplayState(*root);
    xml::writeString(*root, "random", std::to_string(randomState()));
    if (const BaseSky* sky = subsystems_.sky().current())
        xml::writeString(*root, "sky", sky->name());
    saveEntities(world, *root);
    saveOrder(world, *root);
    auto* player = root->LinkEndChild(new TiXmlElement("Player"))->ToElement();
    subsystems_.player().saveState(*player, Digits::exact);
    TiXmlPrinter printer;
    document.Accept(&printer);
    if (files::replace(path, printer.CStr())) {
        subsystems_.renderer().saveThumbnail(savePath(saveName_, ".png"), thumbnailWidth,
                                             thumbnailHeight);
    } else {
        consolePrint("Can't write save file: " + path);
        saveName_ = lastSaveName_;
    }
    // While the game is paused its clocks stand; they skip the whole pause when it ends.
    if (pause_.isPaused())
        return;
    subsystems_.frameClock().tick();
    gameplay.tickClock();
}

bool SaveGames::loadGame(const std::string& name) {
    const std::string path = savePath(name, ".xml");
    const auto refuse = [&] {
        logLine("Can't load save file: " + path);
        consolePrint("Can't load save file: " + path);
        return false;
    };
    TiXmlDocument document;
    if (!files::isSafeName(path) || !resourceManager().loadXML(document, path))
        return refuse();
    const TiXmlElement* root = document.RootElement();
    const TiXmlElement* playerNode = root->FirstChildElement("Player");
    logLine("Loading save game: " + path);
    // Everything is read before the running level is let go.
    const std::string level = xml::readString(*root, "currentlevel");
    std::optional<LevelBodies> bodies = readLevel(subsystems_.bodyFactory(), level);
    LevelBodies entities;
    if (!bodies || !readSavedBodies(subsystems_.bodyFactory(), *root, path, entities))
        return refuse();

    saveName_ = name;
    const int difficulty = xml::readInt(*root, "difficulty");
    vars_.difficulty->setInt(difficulty != 0 ? difficulty : usualDifficulty);
    levels_.unloadMap();
    World& world = subsystems_.world();
    IGameplay& gameplay = subsystems_.gameplay();
    world.quadtree().setSplittable(true);
    world.setNextBodyId(xml::readInt(*root, "nextbodyid"));
    // Before the bodies, which note level times while they join the world.
    gameplay.loadGameplayState(*root);
    shapeIndex(world, *bodies);
    std::move(entities.begin(), entities.end(), std::back_inserter(*bodies));
    insertBodies(world, std::move(*bodies), true);
    // The bodies have chosen the level's first sky; the player may have reached another one.
    if (const std::string sky = xml::readString(*root, "sky");
        !sky.empty() && subsystems_.sky().loadSky(sky))
        subsystems_.sky().switchSky(sky);
    const bool revives = subsystems_.player().revivePending;
    levels_.startLevel(level, "");
    if (playerNode != nullptr)
        restorePlayer(*playerNode, revives);
    restoreOrder(world, *root, Stepper::simulationStep);
    if (xml::has(*root, "random"))
        setRandomState(
            static_cast<std::uint32_t>(std::strtoul(root->Attribute("random"), nullptr, 10)));
    world.quadtree().setSplittable(false);
    levels_.enterLevel();
    subsystems_.frameClock().tick();
    gameplay.tickClock();
    return true;
}

bool SaveGames::loadRequestedGame() {
    if (!std::exchange(loadPending_, false))
        return false;
    if (loadGame(saveName_))
        return true;
    saveName_ = lastSaveName_;
    // Otherwise the player would stay dead.
    if (subsystems_.player().dead)
        levels_.requestMapLoad(levels_.getCurrentLevel(), "");
    return true;
}

void SaveGames::restorePlayer(const TiXmlElement& node, bool revives) {
    Player& player = subsystems_.player();
    player.loadState(node, Digits::exact);
    // A player who died revives in full health, whatever health the save holds.
    if (revives)
        player.revivePending = true;
    player.autoid = World::playerId;
    // No save can take the craft away.
    player.cancleanup = false;
    player.onBeforeTargets();
    player.onLoaded();
    player.onRestored();
    player.onAfterLoad();
    player.updateGeometry();
    player.computeBounds();
    subsystems_.world().quadtree().reinsert(player);
}

}  // namespace bc
