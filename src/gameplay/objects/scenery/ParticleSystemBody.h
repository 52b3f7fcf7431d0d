// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"

namespace bc {

/// An effect that a level places and can switch on and off (type "particlesystembody").
class ParticleSystemBody final : public GameBody {
  public:
    ParticleSystemBody();
    ~ParticleSystemBody() override;

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;
    void onLoaded() override;
    void onTriggered(GameBody* activator) override;
    void onThink(float dt) override;
    void loadState(const TiXmlElement& e) override;
    void saveState(TiXmlElement& e) const override;
    void dumpState(TiXmlElement& debug) const override;

    bool on = false;
    /// Seconds after which a switch is undone; 0 or less: it stays.
    float revertTimer = 0;
    /// The particle definition.
    std::string systemId;
    bool triggered = false;
    /// Level time in milliseconds.
    float revertAt = 0;

  private:
    void flip();
    void start();
    void stop(float seconds);

    /// The manager's id of the running system.
    static constexpr int none = -1;
    int runningSystem_ = none;
};

}  // namespace bc
