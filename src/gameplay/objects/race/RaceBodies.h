// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/Race.h"
#include "gameplay/objects/triggers/TriggerBody.h"

#include <string>
#include <vector>

namespace bc {

/// The start line of a course (type "racestart"): starts the race clock.
class RaceStart final : public TriggerBody {
  public:
    RaceStart();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTouch(const TouchInfo& info) override;
    void onThink(float dt) override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;

    /// Id of the finish; for level makers only.
    std::string endBody;
};

/// A place where the time so far is shown (type "racecheckpoint").
class RaceCheckpoint final : public TriggerBody {
  public:
    RaceCheckpoint();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTouch(const TouchInfo& info) override;
};

/// The finish (type "raceend").
class RaceEnd final : public TriggerBody {
  public:
    RaceEnd();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTouch(const TouchInfo& info) override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;

    // For level makers only; seconds.
    std::string startBody;
    float targetTime = -1;
};

/// Calls the race off (type "racereset").
class RaceReset final : public TriggerBody {
  public:
    RaceReset();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTouch(const TouchInfo& info) override;
};

/// A block to push into a goal (type "raceblock").
class RaceBlock final : public GameBody, public RaceMember {
  public:
    RaceBlock();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onSpawned() override;
    void loadState(const TiXmlElement& e) override;
    void saveState(TiXmlElement& e) const override;
    void dumpState(TiXmlElement& debug) const override;
    void onRaceStarted() override { counted = false; }
    void onRaceReset() override { reset(); }
    /// Back to where it started, not counted.
    void reset();

    Vector startPos;
    bool counted = false;
};

/// The goal for blocks (type "raceendblock"): ends the race when all of them are in.
class RaceEndBlock final : public TriggerBody, public RaceMember {
  public:
    RaceEndBlock();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTouch(const TouchInfo& info) override;
    void onThink(float dt) override;
    void onAfterLoad() override;
    void onBodyRemoved(const Body& gone) override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;
    void loadState(const TiXmlElement& e) override;
    void saveState(TiXmlElement& e) const override;
    void dumpState(TiXmlElement& debug) const override;
    void onRaceStarted() override { forgetCollected(); }
    void onRaceReset() override { forgetCollected(); }
    /// Forgets what it has collected, without moving the blocks.
    void forgetCollected();

    std::string startBody;
    float targetTime = -1;

  protected:
    void onRearmed() override;

  private:
    [[nodiscard]] bool isComplete() const;
    [[nodiscard]] std::string collectedText() const;

    std::map<std::string, bool> collected_;
    /// Not owned.
    std::vector<RaceBlock*> blocks_;
    /// Ids of the blocks that a save counts, until they are found again.
    std::vector<std::string> savedBlocks_;
};

}  // namespace bc
