// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/DefaultGameplay.h"

#include "console/GameVar.h"
#include "core/FontRenderer.h"
#include "core/GameResourceBundle.h"
#include "core/IRenderer.h"
#include "core/Log.h"
#include "core/Text.h"
#include "gameplay/DeveloperCommands.h"
#include "gameplay/GameBodyFactory.h"
#include "gameplay/GameplayInput.h"
#include "gameplay/GameplaySingleton.h"
#include "gameplay/HudNames.h"
#include "gameplay/Player.h"
#include "gameplay/SpawnPoint.h"
#include "render/GameHUD.h"
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
        xml::readValue(node, name, clock);
}

BasicTimer& levelClock() {
    return GameplaySingleton::instance().levelClock;
}

}  // namespace

DefaultGameplay::DefaultGameplay(std::span<const GameBodyType> enemyTypes)
    : enemyTypes_(enemyTypes), hud_(std::make_unique<GameHUD>()) {}

DefaultGameplay::~DefaultGameplay() {
    if (GameplaySingleton::exists() && GameplaySingleton::instance().gameplay == this)
        GameplaySingleton::clear();
}

bool DefaultGameplay::init(std::unique_ptr<GameResourceBundle> bundle) {
    logLine("============ INIT GAMEPLAY ============");
    hud_->setWeaponNames(&hudWeaponNames());
    hud_->setLevelTime([] { return levelTime(); });
    hud_->setRenderer(bundle->renderer);
    hud_->build();
    hud_->resize(screenWidth_, screenHeight_);
    factory_ = std::make_unique<GameBodyFactory>(enemyTypes_);
    factory_->registerDefaults();
    GameplaySingleton& singleton = GameplaySingleton::instance();
    singleton.resources = std::move(bundle);
    singleton.hud = hud_.get();
    singleton.gameplay = this;
    drawTimerVar_ = vars().getVar("drawtimer");
    maxGibsVar_ = vars().getVar("maxgibs");
    registerDeveloperCommands();
    singleton.weaponDefinitions.load(weaponFile);
    return true;
}

bool DefaultGameplay::shutdown() {
    factory_.reset();
    player_ = nullptr;
    hud_->setPlayer(nullptr);
    GameplaySingleton::clear();
    logLine("============ SHUTDOWN GAMEPLAY ============");
    return true;
}

std::unique_ptr<Body> DefaultGameplay::createBody(const std::string& typeName) {
    if (!factory_)
        return nullptr;
    std::unique_ptr<Body> body = factory_->tryCreate(typeName);
    if (typeName == "player") {
        player_ = dynamic_cast<Player*>(body.get());
        if (GameplaySingleton::instance().resources)
            GameplaySingleton::instance().resources->player = player_;
    }
    return body;
}

void DefaultGameplay::forgetPlayer() {
    player_ = nullptr;
    hud_->setPlayer(nullptr);
    if (GameplaySingleton::instance().resources)
        GameplaySingleton::instance().resources->player = nullptr;
}

void DefaultGameplay::update(float dt) {
    levelClock().tick();
    if (raceActive_)
        raceClock_.tick();
    hud_->setPlayer(player_);
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
        raceClock_.restart();
    }
    if (player_ != nullptr)
        player_->revive();
    stateLoaded_ = false;
    endedLevelTime_ = 0;
    gibCount_ = 0;
    spawnPoints_.clear();
    World* world = GameplaySingleton::instance().world();
    if (world != nullptr)
        for (Body* body : world->allBodies())
            if (auto* point = dynamic_cast<SpawnPoint*>(body))
                spawnPoints_.push_back(point);
    if (player_ != nullptr) {
        placePlayer(spawnName);
        if (world != nullptr)
            world->quadtree().reinsert(*player_);
        player_->isfiring = false;
        player_->nextthink = 0;
        player_->inventory.resetForLevel();
    }
    hud_->clearTimers();
}

void DefaultGameplay::carryPlayerOver() {
    if (player_ == nullptr)
        return;
    const float elapsed = endedLevelTime_ + levelTime();
    player_->quadTime -= elapsed;
    player_->nextPainTime -= elapsed;
    player_->invincTime -= elapsed;
    if (player_->hasQuad)
        player_->addQuadEffect();
    if (player_->hasInvinc)
        player_->addInvincibleEffect();
}

void DefaultGameplay::placePlayer(const std::string& spawnName) {
    const SpawnPoint* point = spawnName.empty() ? nullptr : findSpawnPoint(spawnName);
    if (point == nullptr)
        point = startSpawnPoint();
    if (point == nullptr)
        return;
    player_->setPosition(point->pos);
    player_->updateGeometry();
    player_->updateSweptBounds(0);
    point->appearanceEffect();
}

void DefaultGameplay::endLevel() {
    if (player_ != nullptr)
        player_->inventory.unfireAll(levelTime());
    // What the bodies of the next level note while they load counts from that level's start.
    endedLevelTime_ += levelTime();
    levelClock().restart();
    levelClock().running = false;
    spawnPoints_.clear();
    gibCount_ = 0;
    // A race ends with its level.
    raceActive_ = false;
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

std::unique_ptr<InputTarget> DefaultGameplay::createInputTarget() {
    return std::make_unique<GameplayInput>();
}

void DefaultGameplay::setScreenSize(int width, int height) {
    screenWidth_ = width;
    screenHeight_ = height;
    hud_->resize(width, height);
}

void DefaultGameplay::saveGameplayState(TiXmlElement& node) {
    xml::writeValue(node, "timer", levelClock());
    xml::writeBool(node, "raceactive", raceActive_);
    xml::writeValue(node, "racetimer", raceClock_);
}

void DefaultGameplay::loadGameplayState(const TiXmlElement& node) {
    readClock(node, "timer", levelClock());
    raceActive_ = xml::readBool(node, "raceactive");
    readClock(node, "racetimer", raceClock_);
    stateLoaded_ = true;
}

void DefaultGameplay::beforeSave() {
    // The pass that saves counts as level time, so it is in the save as well. The clocks of a
    // paused game stand.
    if (levelClock().paused)
        return;
    tickClock();
    if (raceActive_)
        raceClock_.tick();
}

void DefaultGameplay::tickClock() {
    levelClock().tick();
}

void DefaultGameplay::pause() {
    levelClock().pause();
    if (raceActive_)
        raceClock_.pause();
}

void DefaultGameplay::resume() {
    levelClock().resume();
    if (raceActive_)
        raceClock_.resume();
}

void DefaultGameplay::resetPlayerProgress() {
    if (player_ == nullptr)
        return;
    player_->releaseGrapple();
    player_->inventory.reset();
    player_->progress = {};
}

void DefaultGameplay::reserveGibs(int& count) {
    const int limit = maxGibsVar_ != nullptr ? maxGibsVar_->intValue() : 0;
    count = std::clamp(limit - gibCount_, 0, std::max(count, 0));
    gibCount_ += count;
}

void DefaultGameplay::returnGib() {
    gibCount_ = std::max(gibCount_ - 1, 0);
}

}  // namespace bc
