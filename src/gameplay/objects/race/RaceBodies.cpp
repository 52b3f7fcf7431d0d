// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/race/RaceBodies.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Race.h"
#include "gameplay/actors/Rules.h"
#include "gameplay/actors/Spawning.h"
#include "resources/XmlAttributes.h"
#include "world/TouchInfo.h"
#include "world/World.h"

#include <tinyxml.h>

#include <algorithm>

namespace bc {

namespace {

constexpr const char* readyTexture = "data/images/checkers.png";
constexpr const char* restTexture = "data/images/checkersred.png";

/// The race; null where there are no rules of play.
Race* theRace() {
    Rules* rules = GameplaySingleton::instance().rules;
    return rules != nullptr ? &rules->race() : nullptr;
}

bool raceRuns() {
    const Race* race = theRace();
    return race != nullptr && race->isActive();
}

void showRest(Body& body, bool resting) {
    const char* wanted = resting ? restTexture : readyTexture;
    if (body.texture != wanted)
        body.setTexture(wanted);
}

}  // namespace

RaceStart::RaceStart() {
    type = "racestart";
    texture = readyTexture;
}

std::unique_ptr<Body> RaceStart::create() const {
    return std::make_unique<RaceStart>();
}

void RaceStart::applyAttributes(const std::map<std::string, std::string>& attributes) {
    TriggerBody::applyAttributes(attributes);
    Attributes(attributes).read("endbody", endBody);
}

void RaceStart::onTouch(const TouchInfo& info) {
    if (!isReadyFor(info))
        return;
    arm();
    if (Race* race = theRace())
        race->start();
}

void RaceStart::onThink(float dt) {
    TriggerBody::onThink(dt);
    showRest(*this, triggered);
}

RaceCheckpoint::RaceCheckpoint() {
    type = "racecheckpoint";
}

std::unique_ptr<Body> RaceCheckpoint::create() const {
    return std::make_unique<RaceCheckpoint>();
}

void RaceCheckpoint::onTouch(const TouchInfo& info) {
    if (!isReadyFor(info))
        return;
    arm();
    if (Race* race = theRace())
        race->checkpoint();
}

RaceEnd::RaceEnd() {
    type = "raceend";
}

std::unique_ptr<Body> RaceEnd::create() const {
    return std::make_unique<RaceEnd>();
}

void RaceEnd::applyAttributes(const std::map<std::string, std::string>& attributes) {
    TriggerBody::applyAttributes(attributes);
    const Attributes given(attributes);
    given.read("startbody", startBody);
    given.read("targettime", targetTime);
}

void RaceEnd::onTouch(const TouchInfo& info) {
    if (!isReadyFor(info))
        return;
    if (raceRuns())
        arm();
    if (Race* race = theRace())
        race->finish();
}

RaceReset::RaceReset() {
    type = "racereset";
}

std::unique_ptr<Body> RaceReset::create() const {
    return std::make_unique<RaceReset>();
}

void RaceReset::onTouch(const TouchInfo& info) {
    if (!isReadyFor(info))
        return;
    arm();
    if (Race* race = theRace())
        race->reset();
}

RaceBlock::RaceBlock() {
    type = "raceblock";
    showDamage = false;
}

std::unique_ptr<Body> RaceBlock::create() const {
    return std::make_unique<RaceBlock>();
}

void RaceBlock::onSpawned() {
    GameBody::onSpawned();
    startPos = pos;
}

void RaceBlock::reset() {
    counted = false;
    appearEffect(pos);
    placeAt(*this, startPos);
    vel = Vector();
}

void RaceBlock::loadState(const TiXmlElement& e) {
    GameBody::loadState(e);
    startPos = pos;
    xml::readValue(e, "startpos", startPos);
    counted = xml::readBool(e, "counted");
}

void RaceBlock::saveState(TiXmlElement& e) const {
    GameBody::saveState(e);
    xml::writeValue(e, "startpos", startPos);
    xml::writeBool(e, "counted", counted);
}

void RaceBlock::dumpState(TiXmlElement& debug) const {
    GameBody::dumpState(debug);
    xml::writeValue(debug, "startpos", startPos);
    xml::writeBool(debug, "counted", counted);
}

RaceEndBlock::RaceEndBlock() {
    type = "raceendblock";
    texture = readyTexture;
}

std::unique_ptr<Body> RaceEndBlock::create() const {
    return std::make_unique<RaceEndBlock>();
}

void RaceEndBlock::applyAttributes(const std::map<std::string, std::string>& attributes) {
    TriggerBody::applyAttributes(attributes);
    const Attributes given(attributes);
    given.read("startbody", startBody);
    given.read("targettime", targetTime);
    std::string names;
    given.read("blocks", names);
    std::vector<std::string> ids;
    tokenise(",", names, ids);
    for (const std::string& block : ids)
        collected_[block] = false;
}

bool RaceEndBlock::isComplete() const {
    return std::all_of(collected_.begin(), collected_.end(),
                       [](const auto& entry) { return entry.second; });
}

void RaceEndBlock::onTouch(const TouchInfo& info) {
    auto* block = dynamic_cast<RaceBlock*>(info.other);
    if (triggered || block == nullptr || block->counted || !raceRuns())
        return;
    collected_[block->id] = true;
    blocks_.push_back(block);
    block->counted = true;
    if (!isComplete())
        return;
    if (Race* race = theRace())
        race->finish();
    arm();
}

void RaceEndBlock::onThink(float dt) {
    TriggerBody::onThink(dt);
    showRest(*this, triggered);
}

void RaceEndBlock::onRearmed() {
    const std::vector<RaceBlock*> counted = blocks_;
    forgetCollected();
    for (RaceBlock* block : counted)
        block->reset();
}

void RaceEndBlock::forgetCollected() {
    for (auto& [block, in] : collected_)
        in = false;
    blocks_.clear();
}

void RaceEndBlock::onBodyRemoved(const Body& gone) {
    TriggerBody::onBodyRemoved(gone);
    std::erase(blocks_, &gone);
}

void RaceEndBlock::onAfterLoad() {
    TriggerBody::onAfterLoad();
    World* world = GameplaySingleton::instance().world();
    for (const std::string& block : savedBlocks_) {
        collected_[block] = true;
        if (world == nullptr)
            continue;
        for (Body* body : world->allBodies())
            if (auto* found = dynamic_cast<RaceBlock*>(body);
                found != nullptr && found->id == block && found->counted)
                blocks_.push_back(found);
    }
    savedBlocks_.clear();
}

std::string RaceEndBlock::collectedText() const {
    std::string text;
    for (const auto& [block, in] : collected_)
        if (in)
            text += (text.empty() ? "" : ",") + block;
    return text;
}

void RaceEndBlock::loadState(const TiXmlElement& e) {
    TriggerBody::loadState(e);
    tokenise(",", xml::readString(e, "collected"), savedBlocks_);
}

void RaceEndBlock::saveState(TiXmlElement& e) const {
    TriggerBody::saveState(e);
    xml::writeString(e, "collected", collectedText());
}

void RaceEndBlock::dumpState(TiXmlElement& debug) const {
    TriggerBody::dumpState(debug);
    xml::writeString(debug, "collected", collectedText());
}

}  // namespace bc
