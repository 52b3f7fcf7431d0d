// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "sky/SkyServices.h"

namespace bc {

class World;

/// The sky's particle systems, which the process-wide particle manager runs.
class ParticleSkySystems final : public SkyParticles {
  public:
    int start(const std::string& name, const Vector& position) override;
    void stop(int handle, float seconds) override;
    void draw(IRenderer& renderer, int handle) override;
};

/// Every body of the world but the player blocks the sight.
class WorldSightLine final : public SightLine {
  public:
    explicit WorldSightLine(World& world) : world_(world) {}
    bool isClear(const Vector& from, const Vector& to) override;

  private:
    World& world_;
};

}  // namespace bc
