// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Saved games: the record of a running level and its way back into one.
#include "app/Game.h"
#include "app/GameHandles.h"
#include "command/CommandRegistry.h"
#include "core/Log.h"
#include "core/Random.h"
#include "core/Text.h"
#include "gameplay/player/GameplayInput.h"
#include "gameplay/player/Player.h"
#include "particles/ParticleManager.h"
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

namespace bc {

namespace {

constexpr int saveVersion = 2;
constexpr int usualDifficulty = 3;
// Pixels of the picture beside a save.
constexpr int thumbnailWidth = 320;
constexpr int thumbnailHeight = 240;

std::string savePath(const std::string& name, const char* ending) {
    return "saves/" + name + ending;
}

}  // namespace

void Game::requestSaveAs(const std::string& name) {
    if (!savePending_)
        lastSaveName_ = saveName_;
    saveName_ = name;
    savePending_ = true;
}

void Game::saveGame() {
    savePending_ = false;
    if (saveName_.empty())
        saveName_ = "temp";
    const std::string path = savePath(saveName_, ".xml");
    logLine("Saving save game: " + path);
    if (!files::isSafeName(path) || !levelLoaded_) {
        consolePrint(levelLoaded_ ? "Can't save under the name: " + saveName_
                                  : std::string("Can't save: no level is running"));
        saveName_ = lastSaveName_;
        return;
    }
    gameplay_->beforeSave();
    TiXmlDocument document;
    auto* root = document.LinkEndChild(new TiXmlElement("save"))->ToElement();
    xml::writeInt(*root, "version", saveVersion);
    xml::writeString(*root, "currentlevel", currentLevel_);
    xml::writeInt(*root, "nextbodyid", world_.nextBodyId());
    if (vars_->difficulty != nullptr)
        xml::writeInt(*root, "difficulty", std::clamp(vars_->difficulty->intValue(), 1, 4));
    gameplay_->saveGameplayState(*root);
    xml::writeString(*root, "random", std::to_string(randomState()));
    if (const BaseSky* sky = skyManager_.current())
        xml::writeString(*root, "sky", sky->name());
    saveEntities(world_, *root);
    saveOrder(world_, *root);
    auto* player = root->LinkEndChild(new TiXmlElement("Player"))->ToElement();
    player_->saveState(*player, Digits::exact);
    TiXmlPrinter printer;
    document.Accept(&printer);
    if (files::replace(path, printer.CStr())) {
        renderer_->saveThumbnail(savePath(saveName_, ".png"), thumbnailWidth, thumbnailHeight);
    } else {
        consolePrint("Can't write save file: " + path);
        saveName_ = lastSaveName_;
    }
    // The clocks of a paused game stand; going on takes the whole pause out of them.
    if (paused_)
        return;
    tickClock();
    gameplay_->tickClock();
}

bool Game::loadGame(const std::string& name) {
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
    std::optional<LevelBodies> bodies = readLevel(*bodyFactory_, level);
    LevelBodies entities;
    if (!bodies || !readSavedBodies(*bodyFactory_, *root, path, entities))
        return refuse();

    saveName_ = name;
    if (vars_->difficulty != nullptr) {
        const int difficulty = xml::readInt(*root, "difficulty");
        vars_->difficulty->setInt(difficulty != 0 ? difficulty : usualDifficulty);
    }
    unloadMap();
    world_.quadtree().setSplittable(true);
    world_.setNextBodyId(xml::readInt(*root, "nextbodyid"));
    // The clock first: what bodies note while they are put into the world is on it.
    gameplay_->loadGameplayState(*root);
    shapeIndex(world_, *bodies);
    std::move(entities.begin(), entities.end(), std::back_inserter(*bodies));
    insertBodies(world_, std::move(*bodies), true);
    // The level began with its first sky; the player may have come to another one since.
    if (const std::string sky = xml::readString(*root, "sky");
        !sky.empty() && skyManager_.loadSky(sky))
        skyManager_.switchSky(sky);
    currentLevel_ = level;
    insertPlayer();
    gameInput_->clearActions();
    control_.reset();
    const bool revives = player_->revivePending;
    gameplay_->startLevel("");
    if (playerNode != nullptr)
        restorePlayer(*playerNode, revives);
    restoreOrder(world_, *root, simulationStep);
    if (xml::has(*root, "random"))
        setRandomState(
            static_cast<std::uint32_t>(std::strtoul(root->Attribute("random"), nullptr, 10)));
    world_.quadtree().setSplittable(false);
    enterLevel();
    tickClock();
    gameplay_->tickClock();
    return true;
}

void Game::restorePlayer(const TiXmlElement& node, bool revives) {
    player_->loadState(node, Digits::exact);
    // Who died comes back in full health, however little was left of it when the save was made.
    if (revives)
        player_->revivePending = true;
    player_->autoid = World::playerId;
    // Whatever a save says, the craft is there to stay.
    player_->cancleanup = false;
    player_->onBeforeTargets();
    player_->onLoaded();
    player_->onRestored();
    player_->onAfterLoad();
    player_->updateGeometry();
    player_->computeBounds();
    world_.quadtree().reinsert(*player_);
}

}  // namespace bc
