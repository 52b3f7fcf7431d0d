// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Quad.h"

#include <string>

class TiXmlElement;

namespace bc {

class IRenderer;

/// One quad of a sky. Its corners' colours drift, each channel back and forth between two limits
/// at the rate a second that stands in the quad's colours(); corners are relative to the camera.
class SkyQuad final : public Quad {
  public:
    /// Most passes a glowing quad may have.
    static constexpr int maxGlowSteps = 64;
    static constexpr int additiveStyle = 1;

    /// Reads one rect element of a sky file; what is missing stays at its default.
    void read(const TiXmlElement& rect);
    /// Lets the colours drift by dt seconds, once a pass, and draws the passes in one batch with
    /// the blending in force.
    void draw(IRenderer& renderer, float dt);

    bool glow = false;
    /// Passes a frame when glow is set; the alpha drifts less in each further one.
    int glowSteps = 0;
    bool textured = false;
    bool clamp = false;
    std::string textureName;
    RGBAColour minColour;
    RGBAColour maxColour;
    int blendStyle = additiveStyle;

  private:
    void drift(std::size_t corner, float dt, float alphaFactor);
};

}  // namespace bc
