// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace bc {

class IRenderer;
class Subsystems;
struct AppVariables;
struct BasicTimer;

/// Brings each finished picture to the screen: counts frames, takes screenshots and the pictures of
/// a film (variable movierecord, pictures a second).
class Presenter {
  public:
    /// Both outlive the object; the variables are bound before the first endFrame.
    Presenter(Subsystems& subsystems, const AppVariables& variables);

    /// screenshot.
    void registerCommands();
    /// Starts the time of averageFrameRate.
    void start();
    /// Shows the picture. keepForSave: a save is about to be written and takes it as its thumbnail.
    void endFrame(bool keepForSave);
    /// For who swaps buffers without endFrame.
    void countFrame() { ++frameCount_; }

    /// Buffer swaps so far, those of the logos included.
    [[nodiscard]] std::uint32_t frameCount() const { return frameCount_; }
    /// Frames a second since start; 0 when no time has passed.
    [[nodiscard]] float averageFrameRate() const;
    [[nodiscard]] bool isScreenshotPending() const { return screenshotPending_; }

  private:
    void filmFrame();

    IRenderer& renderer_;
    const BasicTimer& frameClock_;
    const AppVariables& vars_;
    /// Milliseconds of core/Ticks.
    std::uint32_t startTicks_ = 0;
    std::uint32_t frameCount_ = 0;
    /// Seconds since the last picture of the film.
    float movieAccumulator_ = 0;
    bool screenshotPending_ = false;
};

}  // namespace bc
