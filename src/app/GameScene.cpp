// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The scene: camera, aim, sky, bodies, bloom and what lies over them.
#include "app/Game.h"
#include "app/GameHandles.h"
#include "core/Text.h"
#include "gameplay/player/Player.h"
#include "input/GameInput.h"
#include "particles/ParticleManager.h"
#include "ports/FontRenderer.h"
#include "ports/IGameplay.h"
#include "ports/IRenderer.h"
#include "view/Frustum.h"
#include "view/Plane.h"

#include <cmath>

namespace bc {

namespace {

// World units between the camera and the plane of play.
constexpr float usualDistance = 256;
constexpr float mapDistance = 1024;
// The chase point rests while it is this close to the craft, and is never farther than the leash.
constexpr float chaseDeadZone = 2;
constexpr float chaseLeash = 128;
constexpr float gridDepth = 150;

/// A rectangle of the overlay or the world drawn as four lines.
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

float Game::zoom() const {
    if (showingMap_)
        return mapDistance;
    return vars_->camoffset != nullptr ? static_cast<float>(vars_->camoffset->intValue())
                                       : usualDistance;
}

Vector Game::cameraTarget() {
    if (Handles::intOf(vars_->chasecam) == 1)
        return player_->chasePoint;
    return player_->renderpos;
}

void Game::renderWorld() {
    updateChasePoint(frameClock_.frameSeconds());
    const Vector target = cameraTarget();
    renderer_->setCamera(target.x, target.y, -zoom());
    renderer_->pushMatrix();
    updateAim();
    renderer_->popMatrix();
    const bool bloom = Handles::intOf(vars_->drawbloom) == 1;
    if (bloom) {
        renderer_->beginBloomCapture();
        drawScene(true);
        renderer_->endBloomCapture();
    }
    drawScene(false);
    if (bloom) {
        const Vector& v = player_->vel;
        renderer_->setBloomDirection({-v.x, -v.y, v.z});
        renderer_->drawBloom();
    }
}

void Game::drawScene(bool bloomPass) {
    const Vector target = cameraTarget();
    const Vector camera(target.x, target.y, -zoom());
    if (!bloomPass && Handles::intOf(vars_->drawsky) != 0 && !showingMap_)
        skyManager_.draw(*renderer_, camera, frameClock_.frameSeconds());
    drawBodies();
    if (bloomPass)
        return;
    if (Handles::intOf(vars_->drawparticles) != 0)
        particleManager().draw(*renderer_);
    if (gameplay_)
        gameplay_->draw();
    if (Handles::intOf(vars_->drawgrid) > 0) {
        renderer_->setTexturing(false);
        renderer_->setBlending(false);
        world_.quadtree().drawDebug(*renderer_, gridDepth);
    }
}

void Game::drawBodies() {
    const bool bloomPass = renderer_->isCapturingBloom();
    const bool spheres = Handles::intOf(vars_->drawboundingspheres) != 0;
    const bool boxes = Handles::intOf(vars_->drawboundingboxes) != 0;
    renderer_->setColour(255, 255, 255);
    renderer_->setBlending(false);
    renderer_->setDepthTest(true);
    int drawn = 0;
    const auto drawOne = [&](Body& body) {
        renderer_->drawBody(body);
        ++drawn;
        if (!spheres && !boxes)
            return;
        renderer_->setTexturing(false);
        renderer_->setBlending(false);
        renderer_->setColour(255, 0, 0);
        if (spheres)
            drawCircle(*renderer_, body.renderpos, body.radius);
        if (boxes)
            drawBox(*renderer_, body.bounds.minX, body.bounds.minY, body.bounds.maxX,
                    body.bounds.maxY);
    };
    if (Handles::intOf(vars_->frustumcull) == 0) {
        const bool perBody = Handles::intOf(vars_->frustumcull2) != 0;
        for (Body* body : world_.allBodies())
            if (!perBody || !renderer_->getFrustum().isOutside(body->worldVertices()))
                drawOne(*body);
    } else {
        for (Body* body : world_.visibleBodies())
            if (!bloomPass || body->hasGlow)
                drawOne(*body);
    }
    drawDebugInfo(bloomPass, world_.quadtree().visitedNodes(), drawn);

    renderer_->begin2D();
    renderer_->setTexturing(true);
    renderer_->setColour(255, 255, 255, 255);
    if (!bloomPass)
        renderer_->drawSprite("data/images/crosshair1.png", player_->cursorPos.x,
                              static_cast<float>(renderer_->getHeight()) - player_->cursorPos.y, 0,
                              32);
    renderer_->end2D();
}

void Game::drawDebugInfo(bool bloomPass, int visibleCells, int drawnBodies) {
    if (Handles::intOf(vars_->debuginfo) <= 0)
        return;
    FontRenderer& fonts = *renderer_->getFontRenderer();
    renderer_->begin2D();
    fonts.setFont("vera", 14);
    renderer_->setTexturing(true);
    renderer_->setColour(255, 255, 255, 255);
    const auto width = static_cast<float>(renderer_->getWidth());
    if (Handles::intOf(vars_->bodyinfo) > 0 && !bloomPass)
        fonts.drawText(20, 140,
                       std::to_string(world_.allBodies().size()) +
                           " TotalBodies : " + std::to_string(visibleCells) +
                           " in visible quads : " + std::to_string(drawnBodies) + " in frustum");
    if (Handles::intOf(vars_->partcileinfo) > 0)
        fonts.drawText(width - 140, 50,
                       std::to_string(particleManager().particleCount()) + " parts");
    if (Handles::intOf(vars_->drawspeed) > 0)
        fonts.drawText(width - 128, 65, formatFloat(player_->vel.x) + " UPS");
    renderer_->end2D();
}

void Game::updateAim() {
    const GameInput* cursor = getGameInput();
    const Vector from = renderer_->unproject(cursor->mouseX, cursor->mouseY, 0);
    const Vector to = renderer_->unproject(cursor->mouseX, cursor->mouseY, 1);
    Vector hit;
    const Plane plane{{0, 0, 1}, 0};
    if (const auto t = plane.intersect(from, to); t && *t >= 0 && *t <= 1)
        hit = from + (to - from) * *t;
    player_->cursorPos.set(cursor->mouseX, cursor->mouseY);
    player_->aimAt(hit);
    aimedAt_ = hit;
}

void Game::updateChasePoint(float step) {
    const Vector towards = player_->renderpos - player_->chasePoint;
    const float d = towards.length();
    player_->atChasePoint = d <= chaseDeadZone;
    if (player_->atChasePoint)
        return;
    if (d <= chaseLeash)
        player_->chasePoint += normalised(towards) * (d * step);
    else
        player_->chasePoint = player_->renderpos - normalised(towards) * chaseLeash;
}

}  // namespace bc
