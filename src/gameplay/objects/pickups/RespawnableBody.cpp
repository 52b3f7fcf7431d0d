// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/RespawnableBody.h"

#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/player/Player.h"
#include "world/BodyFields.h"
#include "world/TouchInfo.h"

namespace bc {

namespace {

// How pickups tell what they were.
constexpr int textSize = 12;
constexpr float textScale = 0.75F;

}  // namespace

RespawnableBody::RespawnableBody() {
    thinks = true;
    solid = false;
    outlined = false;
    textured = true;
    clampTexture = true;
    showDamage = false;
    usesDefaultShape = true;
    flags.set(bodyflag::untouchable);
}

void RespawnableBody::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level().with("entity", "true").with("texture", texture).with("texmap", "fit");
    f.param("respawndelay", respawnDelay, "Until it comes back after it was collected.");
    f.shown("available", isAvailable());
    f.kept("nextrespawn", nextRespawn);
    f.saved("available", visible, visible);
}

void RespawnableBody::onTouch(const TouchInfo& info) {
    auto* player = dynamic_cast<Player*>(info.other);
    if (player == nullptr || !isAvailable() || !wanted(*player))
        return;
    visible = false;
    nextRespawn = levelTime() + respawnDelay;
    give(*player);
    pickupFeedback();
}

void RespawnableBody::onThink(float /*dt*/) {
    if (!isAvailable() && canRespawn && nextRespawn < levelTime())
        respawn();
}

void RespawnableBody::respawn() {
    visible = true;
    appearEffect(pos);
}

void RespawnableBody::floatText(std::string_view text) {
    spawnText(pos, text, textSize, true, textScale, "vera");
}

void RespawnableBody::announce(int soundId, std::string_view text) {
    playSoundAt(soundId, pos);
    showMessage(text);
    floatText(text);
}

}  // namespace bc
