// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

namespace bc {

class Body;
class IntentSource;
class IRenderer;
class Pause;
class Subsystems;
class World;
struct AppVariables;

/// The picture of the running level: camera, sky, bodies, particles, bloom, crosshair, and what the
/// debug variables show.
class Scene {
  public:
    /// All outlive the object; the variables are bound before the first picture.
    Scene(Subsystems& subsystems, const AppVariables& variables, const Pause& pause,
          IntentSource& intents);

    /// sky.
    void registerCommands();
    /// Finds the bodies in view, with the camera of the last picture. Nothing while the variable
    /// frustumcull is 0: all are drawn then.
    void gatherVisible();
    /// Draws the whole picture and takes the player's aim from its camera.
    void renderWorld();

  private:
    /// bloomPass: only the bodies that glow, for the bloom texture.
    void drawScene(bool bloomPass);
    void drawBodies();
    void drawBody(Body& body);
    void drawCrosshair();
    void drawDebugInfo(bool bloomPass, int visibleCells, int drawnBodies);
    /// step in seconds.
    void updateChasePoint(float step);
    /// What the camera looks at; z is the negative distance of the eye from the plane of play.
    [[nodiscard]] Vector camera() const;

    Subsystems& subsystems_;
    IRenderer& renderer_;
    World& world_;
    const AppVariables& vars_;
    const Pause& pause_;
    IntentSource& intents_;
};

}  // namespace bc
