// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/hazards/Water.h"

#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/SoundIds.h"
#include "particles/ParticleManager.h"
#include "world/BodyFields.h"
#include "world/TouchInfo.h"

#include <cmath>

namespace bc {

namespace {

SurfaceWave& wave() {
    static SurfaceWave shared;
    return shared;
}

}  // namespace

Water::Water() {
    category = category::water;
    hasGlow = true;
    wave().reset();
}

void Water::fields(BodyFields& f) {
    Liquid::fields(f);
    f.level().canBeCut().with("texture", "data/images/water.png").with("z-shift", "2");
}

void Water::onTouch(const TouchInfo& info) {
    if (!info.other->inliquidlastframe && !info.other->inliquid) {
        playSoundAt(sound::splash, info.other->pos);
        startParticles("watersplash", info.other->pos);
    }
    Liquid::onTouch(info);
}

void Water::textureTransform(TextureTransform& transform) {
    const float r = wave().now();
    transform.offsetX = std::cos(10 * r);
    transform.offsetY = std::sin(5 * r);
}

}  // namespace bc
