// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/PlayerCommands.h"

#include "app/Subsystems.h"
#include "command/CommandRegistry.h"
#include "gameplay/player/Player.h"

namespace bc {

void PlayerCommands::registerCommands() {
    CommandRegistry& c = commands();
    c.registerCommand("turn player collisions off", "noclip", [this] { toggleNoclip(); });
    c.registerCommand("warp to 0 0 0", "warp",
                      [this] { subsystems_.player().setPosition(Vector()); });
}

void PlayerCommands::toggleNoclip() {
    noclip_ = !noclip_;
    consolePrint(noclip_ ? "Noclip on" : "Noclip off");
    Player& player = subsystems_.player();
    player.solid = !noclip_;
    player.gravitymultiplier = noclip_ ? 0.0F : 1.0F;
}

}  // namespace bc
