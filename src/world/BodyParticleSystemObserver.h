// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "particles/ParticleSystemObserver.h"

namespace bc {

class Body;

/// Takes a particle system that ends off the body it is attached to. Owned by that body.
class BodyParticleSystemObserver final : public ParticleSystemObserver {
  public:
    explicit BodyParticleSystemObserver(Body& body) : body_(body) {}
    void onParticleSystemEnded(ParticleSystem& system) override;

  private:
    Body& body_;
};

}  // namespace bc
