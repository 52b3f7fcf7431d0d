// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/hazards/Lava.h"

#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
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

Lava::Lava() {
    category = category::lava;
    thinks = true;
    wave().reset();
}

void Lava::fields(BodyFields& f) {
    Liquid::fields(f);
    f.level()
        .canBeCut()
        .with("entity", "true")
        .with("texture", "data/images/lava.png")
        .with("z-shift", "2");
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
    const float r = wave().now();
    transform.offsetX = std::cos(8 * r);
    transform.offsetY = std::sin(8 * r);
    const float s = std::sin(r);
    transform.scaleX = transform.scaleY = 1 + (s >= 0 ? 0.5F : 0.15F) * s;
}

}  // namespace bc
