// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

namespace bc {

class EventRouter;
class LevelSession;
class PassClock;
class Pause;
class Presenter;
class SaveGames;
class Scene;
class ScreenOverlay;
class ScriptRunner;
class Stepper;
class Subsystems;

/// The main loop: what happens in a pass, in which order.
class FrameLoop {
  public:
    /// The parts that a pass drives. All outlive the loop.
    struct Parts {
        Subsystems& subsystems;
        const PassClock& clock;
        ScriptRunner& script;
        EventRouter& events;
        Presenter& presenter;
        Stepper& stepper;
        Scene& scene;
        LevelSession& levels;
        SaveGames& saves;
        const Pause& pause;
        ScreenOverlay& overlay;
    };

    explicit FrameLoop(const Parts& parts) : parts_(parts) {}

    /// Runs passes until a quit is requested, at most so many if a number is given.
    void run(const std::optional<std::uint32_t>& passes);

    /// The pass that runs, counted from 0.
    [[nodiscard]] std::uint32_t pass() const { return pass_; }

  private:
    void runFrame();
    void runFramePaused();
    /// Draws menus and console over the scene of the last pass and swaps buffers.
    void endFrame();
    /// False when the pass ends here, since a level was loaded in it.
    bool updateAndDrawWorld();
    void drawPausedBanner();

    Parts parts_;
    std::uint32_t pass_ = 0;
};

}  // namespace bc
