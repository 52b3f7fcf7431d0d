// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"

namespace bc {

/// How the surface of one kind of liquid moves; all bodies of the kind move alike.
class SurfaceWave {
  public:
    /// Starts it anew; the first advance takes the level time as its phase.
    void reset() { phase_ = unset; }
    /// Moves on, at most once for each level time (ms); dt is the frame in seconds. The result is
    /// the phase in radians.
    float advance(float levelTimeMs, float dt);
    /// The same for this moment of the level.
    float now();

  private:
    static constexpr float unset = -20;
    /// Degrees.
    float phase_ = unset;
    float lastTime_ = -1;
};

/// Slows down what is in it (not in levels itself).
class Liquid : public GameBody {
  public:
    /// What is left of the motion of a body in a liquid.
    static constexpr float friction = 0.8F;

    Liquid();

    void onTouch(const TouchInfo& info) override;
    [[nodiscard]] bool hasTextureTransform() const override { return true; }
};

}  // namespace bc
