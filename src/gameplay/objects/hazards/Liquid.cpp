// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/hazards/Liquid.h"

#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/SoundIds.h"
#include "particles/ParticleManager.h"
#include "world/TouchInfo.h"

#include <cmath>

namespace bc {

namespace {

SurfaceWave& waterWave() {
    static SurfaceWave wave;
    return wave;
}

SurfaceWave& lavaWave() {
    static SurfaceWave wave;
    return wave;
}

float phaseNow(SurfaceWave& wave) {
    GameplaySingleton& play = GameplaySingleton::instance();
    return wave.advance(play.levelTime(), play.frameSeconds());
}

}  // namespace

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

Water::Water() {
    type = "water";
    category = category::water;
    hasGlow = true;
    waterWave().reset();
}

std::unique_ptr<Body> Water::create() const {
    return std::make_unique<Water>();
}

void Water::onTouch(const TouchInfo& info) {
    if (!info.other->inliquidlastframe && !info.other->inliquid) {
        playSoundAt(sound::splash, info.other->pos);
        startParticles("watersplash", info.other->pos);
    }
    Liquid::onTouch(info);
}

void Water::textureTransform(TextureTransform& transform) {
    const float r = phaseNow(waterWave());
    transform.offsetX = std::cos(10 * r);
    transform.offsetY = std::sin(5 * r);
}

Lava::Lava() {
    type = "lava";
    category = category::lava;
    thinks = true;
    lavaWave().reset();
}

std::unique_ptr<Body> Lava::create() const {
    return std::make_unique<Lava>();
}

void Lava::onTouch(const TouchInfo& info) {
    Liquid::onTouch(info);
    auto* body = dynamic_cast<GameBody*>(info.other);
    if (body == nullptr || body->nextPainTime >= levelTime())
        return;
    body->takeDamage(burn, damage::environment);
    body->nextPainTime = levelTime() + burnInterval;
}

void Lava::textureTransform(TextureTransform& transform) {
    const float r = phaseNow(lavaWave());
    transform.offsetX = std::cos(8 * r);
    transform.offsetY = std::sin(8 * r);
    const float s = std::sin(r);
    transform.scaleX = transform.scaleY = 1 + (s >= 0 ? 0.5F : 0.15F) * s;
}

}  // namespace bc
