// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/Checkpoint.h"

#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "ports/IGame.h"
#include "world/BodyFields.h"
#include "world/TouchInfo.h"

namespace bc {

namespace {

constexpr int topCentre = 1;

}  // namespace

Checkpoint::Checkpoint() {}

void Checkpoint::fields(BodyFields& f) {
    TriggerBody::fields(f);
    f.level().with("visible", "false").with("triggeronce", "true");
}

void Checkpoint::onTouch(const TouchInfo& info) {
    if (!isReadyFor(info))
        return;
    arm();
    record(info.other->pos);
}

void Checkpoint::onTriggered(GameBody* /*activator*/) {
    record(pos);
}

void Checkpoint::record(const Vector& position) {
    spawnText(position, "Checkpoint", 12, true, 0.75F, "vera");
    showAnchoredMessage("Saving Checkpoint...", topCentre);
    if (IGame* game = GameplaySingleton::instance().game())
        game->requestSave();
}

}  // namespace bc
