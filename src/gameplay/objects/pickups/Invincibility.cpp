// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/pickups/Invincibility.h"

#include "gameplay/player/Player.h"
#include "particles/ParticleManager.h"

namespace bc {

Invincibility::Invincibility() {
    texture = "data/images/invincibility.png";
    hasGlow = true;
    respawnDelay = 60000;
}

void Invincibility::give(Player& player) {
    player.giveInvincibility(0);
    startParticles("invinciblepickup", pos);
}

}  // namespace bc
