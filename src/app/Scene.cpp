// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/Scene.h"

#include "app/AppVariables.h"
#include "app/IntentSource.h"
#include "app/Pause.h"
#include "app/Subsystems.h"
#include "command/CommandRegistry.h"
#include "core/Text.h"
#include "gameplay/player/Player.h"
#include "particles/ParticleManager.h"
#include "ports/FontRenderer.h"
#include "ports/IGameplay.h"
#include "ports/IRenderer.h"
#include "view/Frustum.h"

#include <cmath>

namespace bc {

namespace {

// World units.
/// Between the eye and the plane of play while the map is shown.
constexpr float mapDistance = 1024;
/// The chase point rests while it is this close to the craft.
constexpr float chaseDeadZone = 2;
/// The chase point is never farther from the craft.
constexpr float chaseLeash = 128;
constexpr float gridDepth = 150;

void drawBox(IRenderer& renderer, float minX, float minY, float maxX, float maxY) {
    renderer.drawLine(minX, minY, maxX, minY, 1);
    renderer.drawLine(maxX, minY, maxX, maxY, 1);
    renderer.drawLine(maxX, maxY, minX, maxY, 1);
    renderer.drawLine(minX, maxY, minX, minY, 1);
}

void drawCircle(IRenderer& renderer, const Vector& centre, float radius) {
    constexpr int segments = 24;
    Vector last = centre + Vector(radius, 0);
    for (int i = 1; i <= segments; ++i) {
        const float a = 6.2831853F * static_cast<float>(i) / segments;
        const Vector next = centre + Vector(radius * std::cos(a), radius * std::sin(a));
        renderer.drawLine(last.x, last.y, next.x, next.y, 1);
        last = next;
    }
}

}  // namespace

Scene::Scene(Subsystems& subsystems, const AppVariables& variables, const Pause& pause,
             IntentSource& intents)
    : subsystems_(subsystems),
      renderer_(subsystems.renderer()),
      world_(subsystems.world()),
      vars_(variables),
      pause_(pause),
      intents_(intents) {}

void Scene::registerCommands() {
    commands().registerCommand("load a specified sky", "sky", [this] {
        const std::string name = commands().arg(0, "default");
        if (!subsystems_.sky().replaceAllByName(name))
            consolePrint("Could not load sky file:" + SkyManager::pathOf(name));
    });
}

Vector Scene::camera() const {
    const Player& player = subsystems_.player();
    const Vector& target = vars_.chasecam->intValue() == 1 ? player.chasePoint : player.renderpos;
    const float distance =
        pause_.isShowingMap() ? mapDistance : static_cast<float>(vars_.camoffset->intValue());
    return {target.x, target.y, -distance};
}

void Scene::gatherVisible() {
    if (vars_.frustumcull->intValue() == 0)
        return;
    world_.gatherVisible(renderer_.getFrustum());
    world_.sortVisible();
}

void Scene::renderWorld() {
    updateChasePoint(subsystems_.frameClock().frameSeconds());
    const Vector place = camera();
    renderer_.setCamera(place.x, place.y, place.z);
    renderer_.pushMatrix();
    intents_.updateAim();
    renderer_.popMatrix();
    const bool bloom = vars_.drawbloom->intValue() == 1;
    if (bloom) {
        renderer_.beginBloomCapture();
        drawScene(true);
        renderer_.endBloomCapture();
    }
    drawScene(false);
    if (bloom) {
        const Vector& v = subsystems_.player().vel;
        renderer_.setBloomDirection({-v.x, -v.y, v.z});
        renderer_.drawBloom();
    }
}

void Scene::drawScene(bool bloomPass) {
    if (!bloomPass && vars_.drawsky->intValue() != 0 && !pause_.isShowingMap())
        subsystems_.sky().draw(renderer_, camera(), subsystems_.frameClock().frameSeconds());
    drawBodies();
    if (bloomPass)
        return;
    if (vars_.drawparticles->intValue() != 0)
        particleManager().draw(renderer_);
    subsystems_.gameplay().draw();
    if (vars_.drawgrid->intValue() > 0) {
        renderer_.setTexturing(false);
        renderer_.setBlending(false);
        world_.quadtree().drawDebug(renderer_, gridDepth);
    }
}

void Scene::drawBodies() {
    const bool bloomPass = renderer_.isCapturingBloom();
    renderer_.setColour(255, 255, 255);
    renderer_.setBlending(false);
    renderer_.setDepthTest(true);
    int drawn = 0;
    const auto drawOne = [&](Body& body) {
        drawBody(body);
        ++drawn;
    };
    if (vars_.frustumcull->intValue() == 0) {
        const bool perBody = vars_.frustumcull2->intValue() != 0;
        for (Body* body : world_.allBodies())
            if (!perBody || !renderer_.getFrustum().isOutside(body->worldVertices()))
                drawOne(*body);
    } else {
        for (Body* body : world_.visibleBodies())
            if (!bloomPass || body->hasGlow)
                drawOne(*body);
    }
    drawDebugInfo(bloomPass, world_.quadtree().visitedNodes(), drawn);
    renderer_.begin2D();
    renderer_.setTexturing(true);
    renderer_.setColour(255, 255, 255, 255);
    if (!bloomPass)
        drawCrosshair();
    renderer_.end2D();
}

void Scene::drawBody(Body& body) {
    renderer_.drawBody(body);
    const bool spheres = vars_.drawboundingspheres->intValue() != 0;
    const bool boxes = vars_.drawboundingboxes->intValue() != 0;
    if (!spheres && !boxes)
        return;
    renderer_.setTexturing(false);
    renderer_.setBlending(false);
    renderer_.setColour(255, 0, 0);
    if (spheres)
        drawCircle(renderer_, body.renderpos, body.radius);
    if (boxes)
        drawBox(renderer_, body.bounds.minX, body.bounds.minY, body.bounds.maxX, body.bounds.maxY);
}

void Scene::drawCrosshair() {
    constexpr float size = 32;
    const Vector& cursor = subsystems_.player().cursorPos;
    // The cursor is measured from the top of the window, the overlay from its bottom.
    renderer_.drawSprite("data/images/crosshair1.png", cursor.x,
                         static_cast<float>(renderer_.getHeight()) - cursor.y, 0, size);
}

void Scene::drawDebugInfo(bool bloomPass, int visibleCells, int drawnBodies) {
    if (vars_.debuginfo->intValue() <= 0)
        return;
    FontRenderer& fonts = *renderer_.getFontRenderer();
    renderer_.begin2D();
    fonts.setFont("vera", 14);
    renderer_.setTexturing(true);
    renderer_.setColour(255, 255, 255, 255);
    const auto width = static_cast<float>(renderer_.getWidth());
    if (vars_.bodyinfo->intValue() > 0 && !bloomPass)
        fonts.drawText(20, 140,
                       std::to_string(world_.allBodies().size()) +
                           " TotalBodies : " + std::to_string(visibleCells) +
                           " in visible quads : " + std::to_string(drawnBodies) + " in frustum");
    if (vars_.partcileinfo->intValue() > 0)
        fonts.drawText(width - 140, 50,
                       std::to_string(particleManager().particleCount()) + " parts");
    if (vars_.drawspeed->intValue() > 0)
        fonts.drawText(width - 128, 65, formatFloat(subsystems_.player().vel.x) + " UPS");
    renderer_.end2D();
}

void Scene::updateChasePoint(float step) {
    Player& player = subsystems_.player();
    const Vector towards = player.renderpos - player.chasePoint;
    const float d = towards.length();
    player.atChasePoint = d <= chaseDeadZone;
    if (player.atChasePoint)
        return;
    if (d <= chaseLeash)
        player.chasePoint += normalised(towards) * (d * step);
    else
        player.chasePoint = player.renderpos - normalised(towards) * chaseLeash;
}

}  // namespace bc
