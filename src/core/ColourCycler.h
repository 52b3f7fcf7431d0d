// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

/// Moves a number back and forth between two bounds at a constant speed, for alphas and colours
/// that pulse.
class ColourCycler {
  public:
    void setMin(float v) { min_ = v; }
    void setMax(float v) { max_ = v; }
    /// Moves the number by step seconds. A number that would pass a bound is set to that bound and
    /// changes its direction; one that lands exactly on a bound keeps its direction.
    void update(float step) {
        if (rising_) {
            current_ += speed_ * step;
            if (current_ > max_) {
                current_ = max_;
                rising_ = false;
            }
        } else {
            current_ -= speed_ * step;
            if (current_ < min_) {
                current_ = min_;
                rising_ = true;
            }
        }
    }
    void setCurrent(float v) { current_ = v; }
    void setRising(bool rising) { rising_ = rising; }
    [[nodiscard]] float getCurrent() const { return current_; }
    [[nodiscard]] bool isRising() const { return rising_; }
    /// Units a second.
    void setSpeed(float v) { speed_ = v; }

  private:
    float min_ = 0;
    float max_ = 0;
    float current_ = 0;
    float speed_ = 0;
    bool rising_ = false;
};

}  // namespace bc
