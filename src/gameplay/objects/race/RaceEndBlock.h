// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/Race.h"
#include "gameplay/objects/triggers/TriggerBody.h"
#include "world/Creatable.h"

#include <map>
#include <string>
#include <vector>

namespace bc {

class RaceBlock;

/// The goal for blocks (type "raceendblock"): ends the race when all of them are in.
class RaceEndBlock final : public Creatable<RaceEndBlock, TriggerBody>, public RaceMember {
  public:
    RaceEndBlock();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo& info) override;
    void onThink(float dt) override;
    void onAfterLoad() override;
    void onBodyRemoved(const Body& gone) override;
    void onRaceStarted() override { forgetCollected(); }
    void onRaceReset() override { forgetCollected(); }
    /// Forgets what it has collected, without moving the blocks.
    void forgetCollected();

    std::string startBody;
    float targetTime = -1;

  protected:
    void onRearmed() override;

  private:
    /// Adds blocks to wait for, by their ids, separated by commas.
    void expectBlocks(const std::string& names);
    [[nodiscard]] bool isComplete() const;
    [[nodiscard]] std::string collectedText() const;

    std::map<std::string, bool> collected_;
    /// Not owned.
    std::vector<RaceBlock*> blocks_;
    /// Ids of the blocks that a save counts, until they are found again.
    std::vector<std::string> savedBlocks_;
};

}  // namespace bc
