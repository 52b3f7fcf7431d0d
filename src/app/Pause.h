// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class Subsystems;

/// Whether the running level stands still. A paused world is drawn but not simulated, and neither
/// the frame clock nor the clocks of play count.
class Pause {
  public:
    explicit Pause(Subsystems& subsystems) : subsystems_(subsystems) {}

    /// pause, +showmap and -showmap.
    void registerCommands();
    void pauseGame();
    void resumeGame();
    /// A level that begins is not paused; its clocks are started by others, and nothing sounds.
    void clear() { paused_ = false; }

    [[nodiscard]] bool isPaused() const { return paused_; }
    /// The camera stands far away, so that the level is seen as a map.
    [[nodiscard]] bool isShowingMap() const { return showingMap_; }

  private:
    void toggle();
    void showMap(bool on);

    Subsystems& subsystems_;
    bool paused_ = false;
    bool showingMap_ = false;
};

}  // namespace bc
