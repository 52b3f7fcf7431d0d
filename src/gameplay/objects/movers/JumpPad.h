// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"

namespace bc {

/// Throws whatever touches it (type "jumppad").
class JumpPad : public GameBody {
  public:
    JumpPad();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTouch(const TouchInfo& info) override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;

    /// Units a second; added to the velocity or in its place.
    Vector speed;
    bool additive = false;
};

/// One that can be switched on and off (type "triggeredjumppad").
class TriggeredJumpPad final : public JumpPad {
  public:
    TriggeredJumpPad();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onSpawned() override;
    void onTouch(const TouchInfo& info) override;
    void onTriggered(GameBody* activator) override;
    void onThink(float dt) override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;
    void loadState(const TiXmlElement& e) override;
    void saveState(TiXmlElement& e) const override;
    void dumpState(TiXmlElement& debug) const override;

    bool startOn = false;
    bool isOn = false;
    bool triggered = false;
    bool triggerOnce = false;
    /// Milliseconds, and the level time at which it switches back.
    float untriggerTime = 0;
    float untriggerAt = 0;
};

}  // namespace bc
