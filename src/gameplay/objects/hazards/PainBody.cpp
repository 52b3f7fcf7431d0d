// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/hazards/PainBody.h"

#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "world/BodyFields.h"
#include "world/TouchInfo.h"

#include <cmath>

namespace bc {

namespace {

/// Milliseconds in which the picture drifts by its own height.
constexpr float driftTime = 3000;

}  // namespace

PainBody::PainBody() {
    thinks = true;
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

void PainBody::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level().with("entity", "true").with("texture", "data/images/painfield.png");
    f.param("on", on, "On at first.").inLevels("true");
    f.param("pain", pain, "Damage.").inLevels("5");
    f.param("reverttimer", revertTimer, "After being triggered, until it turns back; 0 stays.");
    f.shown("on", on);
    f.saved("wastriggered", triggered);
    f.shown("triggered", triggered);
    f.kept("reverttime", revertAt);
    f.saved("on", on, on);
}

void PainBody::onTouch(const TouchInfo& info) {
    auto* body = dynamic_cast<GameBody*>(info.other);
    if (!on || body == nullptr || body->nextPainTime >= levelTime())
        return;
    body->takeDamage(pain, damage::environment);
    body->nextPainTime = levelTime() + painInterval;
}

void PainBody::onTriggered(GameBody* /*activator*/) {
    if (triggered)
        return;
    triggered = true;
    on = !on;
    revertAt = revertTimer + levelTime();
}

void PainBody::onThink(float /*dt*/) {
    if (!triggered || revertTimer <= 0 || revertAt >= levelTime())
        return;
    triggered = false;
    on = !on;
}

void PainBody::textureTransform(TextureTransform& transform) {
    // v grows upwards, so that the look-up has to go down.
    transform.offsetY = -std::fmod(levelTime(), driftTime) / driftTime;
}

}  // namespace bc
