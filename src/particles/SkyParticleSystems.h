// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "render/SkyServices.h"

namespace bc {

/// The particle systems of skies, run by the process-wide particle manager: it moves them wherever
/// they are and leaves their drawing to the sky. A handle is the id of a system.
class SkyParticleSystems final : public SkyParticles {
  public:
    int start(const std::string& name, const Vector& position) override;
    void stop(int handle, float seconds) override;
    void draw(IRenderer& renderer, int handle) override;
};

}  // namespace bc
