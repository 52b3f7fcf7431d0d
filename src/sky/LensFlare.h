// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RGBAColour.h"
#include "core/Vector.h"

#include <array>

class TiXmlElement;

namespace bc {

class IRenderer;
class SightLine;

/// Three additive sprites on the line from the eye to a point of the sky. What stands in front of
/// the point and of the four corners around it dims the flare and its corners.
class LensFlare {
  public:
    /// dt in seconds. Nothing hides the flare when sight is null. Nothing may be pushed on the
    /// matrices: it draws in world coordinates.
    void draw(IRenderer& renderer, const Vector& camera, float dt, SightLine* sight);
    /// The next draw takes over what it sees at once instead of over fadeTime.
    void reset() { settled_ = false; }
    void dump(TiXmlElement& element) const;

    /// Seconds in which a ray goes from hidden to clear or back.
    static constexpr float fadeTime = 0.2F;

    /// 0 to 255: how much of the point and its surroundings is to be seen.
    [[nodiscard]] float strength() const;
    /// 0 to 1 of a corner, in the order top left, top right, bottom right, bottom left.
    [[nodiscard]] float weight(int corner) const;

    /// Relative to the camera.
    Vector position{256, 256, 50};
    RGBAColour colour{255, 80, 5, 255};

  private:
    void look(const Vector& eye, const Vector& point, float dt, SightLine* sight);
    void drawSprite(IRenderer& renderer, const Vector& origin, const Vector& direction,
                    float distance, float scale, float halfSize) const;

    /// How clear the rays to the point and to the four corners are, 0 to 1.
    std::array<float, 5> clear_{};
    bool settled_ = false;
};

}  // namespace bc
