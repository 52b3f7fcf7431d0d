// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/FrameLoop.h"

#include "app/EventRouter.h"
#include "app/LevelSession.h"
#include "app/PassClock.h"
#include "app/Pause.h"
#include "app/Presenter.h"
#include "app/SaveGames.h"
#include "app/Scene.h"
#include "app/ScreenOverlay.h"
#include "app/ScriptRunner.h"
#include "app/Stepper.h"
#include "app/Subsystems.h"
#include "gui/GUIManager.h"
#include "input/Console.h"
#include "ports/IGameplay.h"
#include "ports/IRenderer.h"
#include "sound/Sound.h"

namespace bc {

void FrameLoop::run(const std::optional<std::uint32_t>& passes) {
    for (pass_ = 0; !parts_.events.isQuitting(); ++pass_) {
        if (passes && pass_ >= *passes)
            break;
        parts_.clock.beginPass();
        parts_.script.runDue(pass_);
        parts_.events.pumpEvents();
        if (!parts_.events.isQuitting())
            runFrame();
    }
}

void FrameLoop::runFrame() {
    Subsystems& subsystems = parts_.subsystems;
    IRenderer& renderer = subsystems.renderer();
    subsystems.sound().update();
    if (parts_.pause.isPaused()) {
        runFramePaused();
        return;
    }
    endFrame();
    if (parts_.saves.isSavePending()) {
        parts_.saves.saveGame();
        subsystems.frameClock().tick();
        return;
    }
    subsystems.frameClock().tick();
    renderer.beginFrame();
    if (!updateAndDrawWorld())
        return;
    const float dt = subsystems.frameClock().frameSeconds();
    parts_.overlay.draw(renderer, dt);
    subsystems.gameplay().drawHud(renderer, dt);
}

bool FrameLoop::updateAndDrawWorld() {
    if (!parts_.levels.isRunning()) {
        parts_.stepper.listen();
        return true;
    }
    if (parts_.levels.loadRequestedMap() || parts_.saves.loadRequestedGame())
        return false;
    parts_.scene.gatherVisible();
    parts_.stepper.updateWorld();
    parts_.scene.renderWorld();
    return true;
}

void FrameLoop::runFramePaused() {
    Subsystems& subsystems = parts_.subsystems;
    IRenderer& renderer = subsystems.renderer();
    parts_.stepper.listen();
    endFrame();
    if (parts_.saves.isSavePending())
        parts_.saves.saveGame();
    renderer.beginFrame();
    if (parts_.levels.isRunning()) {
        parts_.scene.gatherVisible();
        parts_.scene.renderWorld();
    }
    subsystems.gameplay().drawHud(renderer, subsystems.frameClock().frameSeconds());
    drawPausedBanner();
}

void FrameLoop::endFrame() {
    Subsystems& subsystems = parts_.subsystems;
    IRenderer& renderer = subsystems.renderer();
    renderer.begin2D();
    subsystems.gui().draw(renderer);
    subsystems.console().draw(renderer);
    renderer.end2D();
    // While the menus are open, the thumbnail is the picture taken when they were opened.
    parts_.presenter.endFrame(parts_.saves.isSavePending() && !subsystems.gui().isVisible());
}

void FrameLoop::drawPausedBanner() {
    // Pixels.
    constexpr int width = 256;
    constexpr int height = 64;
    IRenderer& renderer = parts_.subsystems.renderer();
    renderer.begin2D();
    renderer.setTexturing(true);
    renderer.setColour(255, 255, 255, 150);
    const int left = renderer.getWidth() / 2 - width / 2;
    const int bottom = renderer.getHeight() / 2 - height / 2;
    renderer.drawImage(static_cast<float>(left), static_cast<float>(bottom), 0, width, height,
                       "data/images/paused.png");
    renderer.end2D();
}

}  // namespace bc
