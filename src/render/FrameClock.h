// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

/// Counts frames and makes a value a second of them. Times in milliseconds of core/Ticks.
class FrameClock {
  public:
    void restart(float now) {
        lastReset_ = thisFrame_ = previousFrame_ = now;
        newValue_ = true;
    }
    void frameBegins(float now) {
        previousFrame_ = thisFrame_;
        thisFrame_ = now;
        if (now - lastReset_ < interval)
            return;
        framesPerSecond_ = frames_;
        frames_ = 0;
        restart(now);
    }
    void frameEnds() { ++frames_; }

    /// As counted in the last full second; 0 during the first.
    [[nodiscard]] int framesPerSecond() const { return framesPerSecond_; }
    [[nodiscard]] float frameTime() const { return thisFrame_ - previousFrame_; }
    /// True once after each new value.
    [[nodiscard]] bool takeNewValue() {
        const bool value = newValue_;
        newValue_ = false;
        return value;
    }

  private:
    static constexpr float interval = 1000.0F;

    float lastReset_ = 0;
    float thisFrame_ = 0;
    float previousFrame_ = 0;
    bool newValue_ = false;
    int frames_ = 0;
    int framesPerSecond_ = 0;
};

/// Holds a frame rate where the driver does not: tells after each frame how long to wait.
/// A driver that waits by itself keeps the schedule late and is never held up further.
class FrameLimiter {
  public:
    /// Frames a second; what is no sensible rate is taken as 60.
    void setRate(double rate) {
        period_ = rate >= 20 && rate <= 1000 ? 1000.0 / rate : 1000.0 / 60;
    }
    [[nodiscard]] double period() const { return period_; }

    /// Milliseconds to wait at now so that the next frame is not early. A pause of any length
    /// starts a new schedule instead of a rush of frames.
    [[nodiscard]] unsigned waitAfterFrame(double now) {
        due_ += period_;
        if (now > due_ + period_ || due_ > now + 2 * period_)
            due_ = now;
        const double wait = due_ - now;
        // The clock counts whole milliseconds: less than one may be none.
        return wait >= 1 ? static_cast<unsigned>(wait) : 0;
    }

  private:
    double period_ = 1000.0 / 60;
    double due_ = 0;
};

}  // namespace bc
