// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// An effect that a level places and can switch on and off (type "particlesystembody").
class ParticleSystemBody final : public Creatable<ParticleSystemBody, GameBody> {
  public:
    ParticleSystemBody();
    void fields(BodyFields& f) override;
    ~ParticleSystemBody() override;

    void onLoaded() override;
    void onTriggered(GameBody* activator) override;
    void onThink(float dt) override;

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
