// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/rules/DefaultGameplay.h"

#include "command/GameVar.h"
#include "core/Log.h"
#include "core/Text.h"
#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Gib.h"
#include "gameplay/actors/Spawning.h"
#include "gameplay/objects/scenery/SpawnPoint.h"
#include "gameplay/objects/scenery/TextBody.h"
#include "gameplay/player/DeveloperCommands.h"
#include "gameplay/player/GameplayInput.h"
#include "gameplay/player/HudNames.h"
#include "gameplay/player/ItemCommands.h"
#include "gameplay/player/Player.h"
#include "gameplay/rules/GameBodyFactory.h"
#include "gameplay/weapons/WeaponDefinitions.h"
#include "hud/GameHUD.h"
#include "ports/FontRenderer.h"
#include "ports/GameResourceBundle.h"
#include "ports/IRenderer.h"
#include "resources/XmlAttributes.h"
#include "world/World.h"

#include <tinyxml.h>

#include <algorithm>
#include <limits>

namespace bc {

namespace {

const std::string weaponFile = "data/weapons.xml";

constexpr float timerX = 20;
constexpr float timerY = 60;
constexpr int timerFontSize = 14;

/// A text of too few fields leaves the clock as it runs.
void readClock(const TiXmlElement& node, const char* name, BasicTimer& clock) {
    constexpr std::size_t fieldCount = 5;
    std::vector<std::string> fields;
    tokenise(",", xml::readString(node, name), fields);
    if (fields.size() >= fieldCount)
        xml::readValue(node, name, clock, Digits::exact);
}

BasicTimer& levelClock() {
    return GameplaySingleton::instance().levelClock;
}

}  // namespace

DefaultGameplay::DefaultGameplay() : hud_(std::make_unique<GameHUD>()) {}

DefaultGameplay::~DefaultGameplay() {
    if (GameplaySingleton::exists() && GameplaySingleton::instance().rules == this)
        GameplaySingleton::clear();
}

bool DefaultGameplay::init(std::unique_ptr<GameResourceBundle> bundle) {
    logLine("============ INIT GAMEPLAY ============");
    hud_->setWeaponNames(&hudWeaponNames());
    hud_->setLevelTime([] { return levelTime(); });
    hud_->setRenderer(bundle->renderer);
    hud_->build();
    hud_->resize(screenWidth_, screenHeight_);
    factory_ = std::make_unique<GameBodyFactory>();
    factory_->registerDefaults();
    GameplaySingleton& singleton = GameplaySingleton::instance();
    singleton.resources = std::move(bundle);
    singleton.hud = hud_.get();
    singleton.rules = this;
    drawTimerVar_ = vars().getVar("drawtimer");
    maxGibsVar_ = vars().getVar("maxgibs");
    registerDeveloperCommands();
    weaponDefinitions().load(weaponFile);
    return true;
}

bool DefaultGameplay::shutdown() {
    factory_.reset();
    hud_->setPlayer(nullptr);
    GameplaySingleton::clear();
    logLine("============ SHUTDOWN GAMEPLAY ============");
    return true;
}

std::unique_ptr<Body> DefaultGameplay::createBody(const std::string& typeName) {
    return factory_ ? factory_->tryCreate(typeName) : nullptr;
}

std::unique_ptr<Player> DefaultGameplay::createPlayer() {
    auto player = std::make_unique<Player>();
    GameplaySingleton::instance().craft = player.get();
    return player;
}

void DefaultGameplay::update(float dt) {
    levelClock().tick();
    race_.tick();
    hud_->setPlayer(currentPlayer());
    hud_->update(dt);
    World* world = GameplaySingleton::instance().world();
    if (world == nullptr)
        return;
    const float now = levelTime();
    const World::DeferredDeletion kept(*world);
    // By index: bodies spawn others, which have their turn in the same walk.
    for (std::size_t i = 0; i < world->allBodies().size(); ++i) {
        Body& body = *world->allBodies()[i];
        body.update(dt);
        // Without an interval a body thinks in every step, also in those that one frame makes at
        // the same level time.
        if (body.thinks && (body.nextthink < now || body.thinkInterval <= 0)) {
            body.think(dt);
            body.nextthink = body.thinkInterval + now;
        }
    }
}

void DefaultGameplay::startLevel(const std::string& spawnName) {
    if (!stateLoaded_) {
        carryPlayerOver();
        levelClock().restart();
        race_.beginLevel();
    }
    Player* player = currentPlayer();
    if (player != nullptr)
        player->revive();
    stateLoaded_ = false;
    endedLevelTime_ = 0;
    gibCount_ = 0;
    spawnPoints_.clear();
    World* world = GameplaySingleton::instance().world();
    if (world != nullptr)
        for (Body* body : world->allBodies())
            if (auto* point = dynamic_cast<SpawnPoint*>(body))
                spawnPoints_.push_back(point);
    if (player != nullptr) {
        placePlayer(*player, spawnName);
        if (world != nullptr)
            world->quadtree().reinsert(*player);
        player->isfiring = false;
        player->nextthink = 0;
        registerItemCommands();
        player->inventory.resetForLevel();
    }
    hud_->clearTimers();
}

void DefaultGameplay::carryPlayerOver() {
    Player* player = currentPlayer();
    if (player == nullptr)
        return;
    const float elapsed = endedLevelTime_ + levelTime();
    player->quadTime -= elapsed;
    player->nextPainTime -= elapsed;
    player->invincTime -= elapsed;
    if (player->hasQuad)
        player->addQuadEffect();
    if (player->hasInvinc)
        player->addInvincibleEffect();
}

void DefaultGameplay::placePlayer(Player& player, const std::string& spawnName) {
    const SpawnPoint* point = spawnName.empty() ? nullptr : findSpawnPoint(spawnName);
    if (point == nullptr)
        point = startSpawnPoint();
    if (point == nullptr)
        return;
    player.setPosition(point->pos);
    player.updateGeometry();
    player.updateSweptBounds(0);
    point->appearanceEffect();
}

void DefaultGameplay::endLevel() {
    if (Player* player = currentPlayer())
        player->inventory.unfireAll(levelTime());
    // What the bodies of the next level note while they load counts from that level's start.
    endedLevelTime_ += levelTime();
    levelClock().restart();
    levelClock().running = false;
    spawnPoints_.clear();
    gibCount_ = 0;
    // A race ends with its level.
    race_.endLevel();
}

void DefaultGameplay::draw() {
    IRenderer* renderer = GameplaySingleton::instance().renderer();
    FontRenderer* fonts = renderer != nullptr ? renderer->getFontRenderer() : nullptr;
    if (fonts == nullptr || drawTimerVar_ == nullptr || drawTimerVar_->intValue() <= 0)
        return;
    renderer->begin2D();
    renderer->setTexturing(true);
    renderer->setColour(255, 255, 255, 255);
    fonts->setFont("vera", timerFontSize);
    fonts->drawText(timerX, timerY, "Level Time: " + formatFloat(levelTime() / 1000));
    renderer->end2D();
}

void DefaultGameplay::drawHud(IRenderer& renderer, float dt) {
    hud_->draw(renderer, dt);
}

SpawnPoint* DefaultGameplay::nearestSpawnPoint(const Body& body) {
    SpawnPoint* nearest = nullptr;
    float best = std::numeric_limits<float>::infinity();
    for (SpawnPoint* point : spawnPoints_) {
        const float squared = planarDistanceSquared(point->pos, body.pos);
        if (squared < best) {
            best = squared;
            nearest = point;
        }
    }
    return nearest;
}

SpawnPoint* DefaultGameplay::startSpawnPoint() {
    const auto found = std::find_if(spawnPoints_.begin(), spawnPoints_.end(),
                                    [](const SpawnPoint* p) { return p->startPoint; });
    return found != spawnPoints_.end() ? *found : nullptr;
}

SpawnPoint* DefaultGameplay::findSpawnPoint(const std::string& id) {
    const auto found = std::find_if(spawnPoints_.begin(), spawnPoints_.end(),
                                    [&id](const SpawnPoint* p) { return p->id == id; });
    return found != spawnPoints_.end() ? *found : nullptr;
}

std::unique_ptr<GameplayInput> DefaultGameplay::createInputTarget() {
    return std::make_unique<GameplayInput>();
}

void DefaultGameplay::setScreenSize(int width, int height) {
    screenWidth_ = width;
    screenHeight_ = height;
    hud_->resize(width, height);
}

void DefaultGameplay::saveGameplayState(TiXmlElement& node) {
    xml::writeValue(node, "timer", levelClock(), Digits::exact);
    xml::writeBool(node, "raceactive", race_.isActive());
    xml::writeValue(node, "racetimer", race_.clock(), Digits::exact);
}

void DefaultGameplay::loadGameplayState(const TiXmlElement& node) {
    readClock(node, "timer", levelClock());
    BasicTimer raceClock = race_.clock();
    readClock(node, "racetimer", raceClock);
    race_.restore(xml::readBool(node, "raceactive"), raceClock);
    stateLoaded_ = true;
}

void DefaultGameplay::beforeSave() {
    // The pass that saves counts as level time, so it is in the save as well. The clocks of a
    // paused game stand.
    if (levelClock().paused)
        return;
    tickClock();
    race_.tick();
}

void DefaultGameplay::tickClock() {
    levelClock().tick();
}

void DefaultGameplay::pause() {
    levelClock().pause();
    race_.pause();
}

void DefaultGameplay::resume() {
    levelClock().resume();
    race_.resume();
}

void DefaultGameplay::resetPlayerProgress() {
    Player* player = currentPlayer();
    if (player == nullptr)
        return;
    player->releaseGrapple();
    player->inventory.reset();
    player->progress = {};
}

void DefaultGameplay::reserveGibs(int& count) {
    const int limit = maxGibsVar_ != nullptr ? maxGibsVar_->intValue() : 0;
    count = std::clamp(limit - gibCount_, 0, std::max(count, 0));
    gibCount_ += count;
}

void DefaultGameplay::returnGib() {
    gibCount_ = std::max(gibCount_ - 1, 0);
}

void DefaultGameplay::launchGib(const Vector& position) {
    Gib::launchFrom(position);
}

void DefaultGameplay::floatText(const Vector& position, std::string_view text, int size,
                                bool shadow, float scale, const std::string& font) {
    auto body = std::make_unique<TextBody>();
    body->text = text;
    body->font = font;
    body->size = size;
    body->shadow = shadow;
    body->scale = scale;
    body->floatAway();
    spawnAt(std::move(body), position + Vector(0, 0, effectRaise));
}

}  // namespace bc
