// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "sky/SkyServices.h"

namespace bc {

class World;

/// The sky's particle systems, run by the process-wide particle manager.
class ParticleSkySystems final : public SkyParticles {
  public:
    int start(const std::string& name, const Vector& position) override;
    void stop(int handle, float seconds) override;
    void draw(IRenderer& renderer, int handle) override;
};

/// Looks through the world's bodies, the player's own left out.
class WorldSightLine final : public SightLine {
  public:
    explicit WorldSightLine(World& world) : world_(world) {}
    bool isClear(const Vector& from, const Vector& to) override;

  private:
    World& world_;
};

}  // namespace bc
