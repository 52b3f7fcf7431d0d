// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RGBAColour.h"

#include <memory>
#include <string>

class TiXmlElement;

namespace bc {

class IRenderer;

/// A colour wash over the whole window that runs for a time and then is no longer active; its
/// owner deletes it then.
class OverlayEffect {
  public:
    virtual ~OverlayEffect() = default;

    /// Moves on by dt seconds and draws. The call that passes the duration draws nothing and
    /// leaves it inactive.
    virtual void draw(IRenderer& renderer, float dt);
    /// The colour's change alone.
    void update(float dt);
    void dump(TiXmlElement& element) const;

    bool active = true;
    /// Seconds.
    float duration = 0;
    float elapsed = 0;
    RGBAColour colour;
    /// Change of each channel a second; channels stay within 0 to 255.
    RGBAColour colourRate;
    bool additive = false;
    bool textured = false;
    std::string textureName;
    /// Draws in the overlay view, in window pixels; otherwise in the view in force.
    bool inOverlayMode = true;
    float depth = 0;
};

/// One second long unless told otherwise.
class SimpleFadeOverlay : public OverlayEffect {
  public:
    SimpleFadeOverlay() { duration = 1; }
    /// alphaRate: change of the colour's alpha a second.
    SimpleFadeOverlay(const RGBAColour& from, float alphaRate, float seconds);

    /// Black that gives way to the picture within that time.
    [[nodiscard]] static std::unique_ptr<SimpleFadeOverlay> fromBlack(float seconds = 1);
};

}  // namespace bc
