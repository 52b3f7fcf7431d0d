// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/Cinematic.h"

namespace bc {

/// The logos at the start: in over 3.2 s, held for 2 s, out again.
class GameLogoScene final : public Cinematic {
  public:
    using Cinematic::Cinematic;

  protected:
    void frame(float dt) override;

  private:
    void fade(float dt);
    void draw();

    float alpha_ = 0;
    bool fadingOut_ = false;
    /// Seconds of elapsed_ until which the picture stands.
    float holdUntil_ = 0;
};

}  // namespace bc
