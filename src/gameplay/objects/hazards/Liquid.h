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

/// With a splash for what falls in (type "water").
class Water final : public Liquid {
  public:
    Water();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTouch(const TouchInfo& info) override;
    void textureTransform(TextureTransform& transform) override;
};

/// Burns (type "lava").
class Lava final : public Liquid {
  public:
    /// Damage of one contact, and milliseconds until the next one hurts.
    static constexpr int burn = 10;
    static constexpr float burnInterval = 200;

    Lava();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTouch(const TouchInfo& info) override;
    void textureTransform(TextureTransform& transform) override;
};

}  // namespace bc
