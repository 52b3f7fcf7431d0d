// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/Cinematic.h"

namespace bc {

/// The logos at the start: they appear within 3.2 s, stand for 2 s and fade within 3.2 s.
class GameLogoScene final : public Cinematic {
  public:
    using Cinematic::Cinematic;

  protected:
    void frame(float dt) override;

  private:
    void fade(float dt);
    void draw();

    /// From 0 to 255; a little beyond either for one frame, which turns the fade.
    float alpha_ = 0;
    bool fadingOut_ = false;
    /// Seconds since the scene began, until which the picture stands.
    float holdUntil_ = 0;
};

}  // namespace bc
