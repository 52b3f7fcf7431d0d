// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace bc {

class IRenderer;
class OverlayEffect;

/// The full-screen effect over the scene: one at a time, a fade or a flash. A new one replaces the
/// one that runs.
class ScreenOverlay {
  public:
    ScreenOverlay();
    ~ScreenOverlay();
    ScreenOverlay(const ScreenOverlay&) = delete;
    ScreenOverlay& operator=(const ScreenOverlay&) = delete;

    void setOverlay(std::unique_ptr<OverlayEffect> overlay);
    void endOverlay();
    /// From black to the picture within a second.
    void startFadeIn();
    /// Once a pass; dt in seconds. Deletes the effect when its time is over.
    void draw(IRenderer& renderer, float dt);

    /// Null while none runs.
    [[nodiscard]] const OverlayEffect* current() const { return overlay_.get(); }

  private:
    std::unique_ptr<OverlayEffect> overlay_;
};

}  // namespace bc
