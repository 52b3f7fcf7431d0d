// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/Presenter.h"

#include "app/AppVariables.h"
#include "app/Subsystems.h"
#include "command/CommandRegistry.h"
#include "core/Ticks.h"
#include "ports/IRenderer.h"

namespace bc {

Presenter::Presenter(Subsystems& subsystems, const AppVariables& variables)
    : renderer_(subsystems.renderer()), frameClock_(subsystems.frameClock()), vars_(variables) {}

void Presenter::registerCommands() {
    commands().registerCommand("take a screenshot", "screenshot",
                               [this] { screenshotPending_ = true; });
}

void Presenter::start() {
    startTicks_ = ticks();
}

void Presenter::endFrame(bool keepForSave) {
    renderer_.drawFPS();
    filmFrame();
    if (screenshotPending_) {
        renderer_.takeScreenshot();
        screenshotPending_ = false;
    }
    // Before the swap, since the back buffer's content is undefined behind it.
    if (keepForSave)
        renderer_.grabThumbnail();
    renderer_.endFrame();
    countFrame();
}

void Presenter::filmFrame() {
    const int rate = vars_.movierecord->intValue();
    if (rate <= 0)
        return;
    movieAccumulator_ += frameClock_.frameSeconds();
    if (movieAccumulator_ > 1.0F / static_cast<float>(rate)) {
        screenshotPending_ = true;
        movieAccumulator_ = 0;
    }
}

float Presenter::averageFrameRate() const {
    const float seconds = static_cast<float>(ticks() - startTicks_) / 1000.0F;
    return seconds > 0 ? static_cast<float>(frameCount_) / seconds : 0;
}

}  // namespace bc
