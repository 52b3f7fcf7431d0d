// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/IntentSource.h"

#include "app/Subsystems.h"
#include "gameplay/player/GameplayInput.h"
#include "gameplay/player/Player.h"
#include "ports/IRenderer.h"
#include "view/Plane.h"

namespace bc {

PlayerIntent IntentSource::takeIntent() {
    PlayerIntent intent = subsystems_.gameInput().takeIntent();
    // As of the picture drawn last: the craft may have been put elsewhere since.
    const Player& player = subsystems_.player();
    intent.aim = player.aim;
    intent.aimAt = player.mouseWorldPos;
    return intent;
}

void IntentSource::updateAim() {
    const GameplayInput& cursor = subsystems_.gameInput();
    IRenderer& renderer = subsystems_.renderer();
    const Vector from = renderer.unproject(cursor.mouseX, cursor.mouseY, 0);
    const Vector to = renderer.unproject(cursor.mouseX, cursor.mouseY, 1);
    Vector hit;
    const Plane plane{{0, 0, 1}, 0};
    if (const auto t = plane.intersect(from, to); t && *t >= 0 && *t <= 1)
        hit = from + (to - from) * *t;
    Player& player = subsystems_.player();
    player.cursorPos.set(cursor.mouseX, cursor.mouseY);
    player.aimAt(hit);
}

void IntentSource::clear() {
    subsystems_.gameInput().clearActions();
}

}  // namespace bc
