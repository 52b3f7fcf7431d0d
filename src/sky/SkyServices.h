// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

#include <string>

namespace bc {

class IRenderer;

/// The particle systems that a sky runs. They live around the camera instead of in the world, so
/// they are neither culled nor drawn with the world's own: the sky draws them itself.
class SkyParticles {
  public:
    /// What start answers when no system could be made.
    static constexpr int none = -1;

    virtual ~SkyParticles() = default;
    /// Makes the named system at a position relative to the camera and lets it emit what it
    /// begins with. The answer names it until it ends.
    virtual int start(const std::string& name, const Vector& position) = 0;
    /// Ends it within that many seconds. A handle whose system is gone, because it ran out or the
    /// level was cleared, is nothing to draw and nothing to stop.
    virtual void stop(int handle, float seconds) = 0;
    virtual void draw(IRenderer& renderer, int handle) = 0;
};

/// Looks along a line through the level.
class SightLine {
  public:
    virtual ~SightLine() = default;
    /// True when no body stands between; the player's own body, which is where the camera looks,
    /// does not count. Both are world positions.
    virtual bool isClear(const Vector& from, const Vector& to) = 0;
};

}  // namespace bc
