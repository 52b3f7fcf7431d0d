// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/hazards/Liquid.h"

#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "world/TouchInfo.h"

namespace bc {

float SurfaceWave::now() {
    GameplaySingleton& play = GameplaySingleton::instance();
    return advance(play.levelTime(), play.frameSeconds());
}

float SurfaceWave::advance(float levelTimeMs, float dt) {
    if (phase_ < -19)
        phase_ = levelTimeMs + dt;
    if (levelTimeMs != lastTime_) {
        lastTime_ = levelTimeMs;
        phase_ += dt;
    }
    return phase_ * 3.1415927F / 180;
}

Liquid::Liquid() {
    solid = false;
    outlined = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

void Liquid::onTouch(const TouchInfo& info) {
    info.other->inliquid = true;
    info.other->liquidfriction = friction;
}

}  // namespace bc
