// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/Stepper.h"

#include "app/AppVariables.h"
#include "app/IntentSource.h"
#include "app/Subsystems.h"
#include "gameplay/player/Player.h"
#include "particles/ParticleManager.h"
#include "ports/IGameplay.h"
#include "ports/IRenderer.h"
#include "sound/Sound.h"

#include <algorithm>

namespace bc {

void Stepper::updateWorld() {
    const float dt = std::min(subsystems_.frameClock().frameSeconds(), longestFrame);
    stepAccumulator_ += dt;
    particleAccumulator_ += dt;
    World& world = subsystems_.world();
    Player& player = subsystems_.player();
    PlayerControl& control = subsystems_.control();
    IGameplay& gameplay = subsystems_.gameplay();
    const PlayerIntent intent = intents_.takeIntent();
    control.applyFiring(player, intent);
    while (stepAccumulator_ >= simulationStep) {
        control.applyMovement(player, intent, simulationStep);
        gameplay.beforeUpdate();
        gameplay.update(simulationStep);
        world.simulate(simulationStep, vars_.gravity->floatValue());
        gameplay.afterUpdate();
        stepAccumulator_ -= simulationStep;
        ++stepCount_;
        ++levelSteps_;
    }
    listen();
    while (particleAccumulator_ >= particleStep) {
        particleManager().update(particleStep, subsystems_.renderer().getFrustum());
        particleAccumulator_ -= particleStep;
        ++particleStepCount_;
    }
    world.interpolate(stepAccumulator_ / simulationStep);
}

void Stepper::listen() {
    subsystems_.sound().updateListener(subsystems_.player().renderpos);
}

void Stepper::beginLevel() {
    intents_.clear();
    subsystems_.control().reset();
    levelSteps_ = 0;
}

}  // namespace bc
