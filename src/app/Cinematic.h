// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/BasicTimer.h"

#include <string>

namespace bc {

class Game;

/// A scene that runs a frame loop of its own until it ends; the input manager sees none of its
/// events. A key or button ends it after 0.3 s, a quit event at once.
class Cinematic {
  public:
    explicit Cinematic(Game& game);
    virtual ~Cinematic() = default;
    /// Returns when the scene has ended.
    void run();

  protected:
    /// Moves and draws one frame; dt in seconds.
    virtual void frame(float dt) = 0;

    Game& game_;
    std::string name_;
    bool active_ = true;
    float elapsed_ = 0;
    BasicTimer timer_;
    bool skippable_ = true;

  private:
    void beginFrame();
    void pumpEvents();
    void endFrame();
};

}  // namespace bc
