// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/BasicTimer.h"

namespace bc {

class EventPump;
class EventRouter;
class IRenderer;
class PassClock;
class Presenter;
class Subsystems;

/// A scene that runs a frame loop of its own before the main loop; the input manager sees none of
/// its events. A key or mouse button ends it after 0.3 s, a quit event at once.
class Cinematic {
  public:
    /// All outlive the object.
    Cinematic(Subsystems& subsystems, const PassClock& clock, EventPump& pump, EventRouter& router,
              Presenter& presenter);
    virtual ~Cinematic() = default;
    /// Returns when the scene has ended.
    void run();

  protected:
    /// Moves and draws one frame; dt in seconds.
    virtual void frame(float dt) = 0;
    void end() { active_ = false; }
    /// Seconds since the scene began.
    [[nodiscard]] float elapsed() const { return elapsed_; }
    [[nodiscard]] IRenderer& renderer() { return renderer_; }

  private:
    void beginFrame();
    void pumpEvents();
    void endFrame();

    IRenderer& renderer_;
    BasicTimer& frameClock_;
    const PassClock& passClock_;
    EventPump& pump_;
    EventRouter& router_;
    Presenter& presenter_;
    bool active_ = true;
    float elapsed_ = 0;
};

}  // namespace bc
