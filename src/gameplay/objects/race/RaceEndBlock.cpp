// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/race/RaceEndBlock.h"

#include "core/Text.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Race.h"
#include "gameplay/objects/race/RaceBlock.h"
#include "gameplay/objects/race/RaceGate.h"
#include "world/BodyFields.h"
#include "world/TouchInfo.h"
#include "world/World.h"

#include <algorithm>

namespace bc {

RaceEndBlock::RaceEndBlock() {
    texture = readyGateTexture;
}

void RaceEndBlock::fields(BodyFields& f) {
    TriggerBody::fields(f);
    f.level()
        .with("untriggertimer", "2000")
        .with("texture", "data/images/checkers.png")
        .with("texsize", "32");
    f.param("startbody", startBody, "Name of the start of this race.").kind(ParamKind::id);
    f.param(
         "blocks", std::string(), [this](const std::string& names) { expectBlocks(names); },
         "Names of the race blocks that have to come here.")
        .kind(ParamKind::ids)
        .required();
    f.param("targettime", targetTime, "Time to beat, seconds; -1 for none.");
    f.savedAs("collected", collectedText(),
              [this](const std::string& names) { tokenise(",", names, savedBlocks_); });
    f.shown("collected", [this] { return collectedText(); });
}

void RaceEndBlock::expectBlocks(const std::string& names) {
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
    if (triggered || block == nullptr || block->counted || !isRaceActive())
        return;
    collected_[block->id] = true;
    blocks_.push_back(block);
    block->counted = true;
    if (!isComplete())
        return;
    if (Race* race = currentRace())
        race->finish();
    arm();
}

void RaceEndBlock::onThink(float dt) {
    TriggerBody::onThink(dt);
    showGateState(*this, triggered);
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

}  // namespace bc
