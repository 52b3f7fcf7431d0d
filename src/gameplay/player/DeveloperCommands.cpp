// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/player/DeveloperCommands.h"

#include "command/CommandRegistry.h"
#include "core/Text.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Truncate.h"
#include "gameplay/player/Player.h"
#include "ports/IGame.h"
#include "resources/FileSystem.h"
#include "world/World.h"

#include <string>

namespace bc {

namespace {

const std::string infoFile = "playerinfo.txt";

/// Stops the player and puts it somewhere.
void warp(Player& player, const Vector& position) {
    player.vel = Vector();
    player.setPosition(position);
    player.updateGeometry();
    player.updateSweptBounds(0);
    if (World* world = GameplaySingleton::instance().world())
        world->quadtree().reinsert(player);
}

void warpTo(Player& player) {
    if (commands().argCount() < 1) {
        consolePrint("warpto incorrect usage, please specify an object id");
        return;
    }
    const World* world = GameplaySingleton::instance().world();
    if (world == nullptr)
        return;
    const std::string id = commands().arg(0);
    for (const Body* body : world->allBodies())
        if (body->id == id)
            warp(player, body->pos);
}

void warpNearest(Player& player) {
    const World* world = GameplaySingleton::instance().world();
    const Body* nearest = nullptr;
    float best = 0;
    if (world != nullptr)
        for (const Body* body : world->allBodies()) {
            const auto* place = dynamic_cast<const GameBody*>(body);
            if (place == nullptr || !place->isWarpPlace())
                continue;
            const float away = planarDistance(player.pos, body->pos);
            if (nearest == nullptr || away < best) {
                nearest = body;
                best = away;
            }
        }
    if (nearest != nullptr)
        warp(player, nearest->pos);
    else
        consolePrint("Couldn't find a named node");
}

void throwPlayer(Player& player, const Vector& target, float speed) {
    const Vector towards = target - player.pos;
    player.vel = normalised(Vector(towards.x, towards.y)) * speed;
}

void firePlayer(Player& player) {
    if (commands().argCount() < 2) {
        consolePrint("fireplayer incorrect usage, please specify a position and a speed");
        return;
    }
    throwPlayer(player, Vector(commands().arg(0)), parseFloat(commands().arg(1)));
}

void firePlayerAtMouse(Player& player) {
    if (commands().argCount() < 1) {
        consolePrint("fireplayeratmouse incorrect usage, please specify a speed");
        return;
    }
    throwPlayer(player, player.mouseWorldPos, parseFloat(commands().arg(0)));
}

std::string mouseLine(const Player& player) {
    return "Player Mouse Pos: " + player.mouseWorldPos.toString();
}

void playerInfo(Player& player) {
    const IGame* game = GameplaySingleton::instance().game();
    const std::string level = game != nullptr ? game->getCurrentLevel() : std::string();
    const std::string lines[] = {
        "Player pos, vel: " + player.pos.toString() + " " + player.vel.toString(),
        mouseLine(player),
        "Current Level: " + level + " : at time: " + std::to_string(truncated(levelTime())),
    };
    std::string text;
    for (const std::string& line : lines) {
        consolePrint(line);
        text += line + '\n';
    }
    files::replace(infoFile, text);
}

void registerPlayerCommand(const char* description, const char* name, void (*action)(Player&)) {
    commands().registerCommand(description, name, [action] {
        if (Player* player = currentPlayer())
            action(*player);
    });
}

}  // namespace

void registerDeveloperCommands() {
    registerPlayerCommand("warp to a named node", "warpto", warpTo);
    registerPlayerCommand("warp to the nearest node", "warpnearest", warpNearest);
    registerPlayerCommand("fire the player at a position at a speed", "fireplayer", firePlayer);
    registerPlayerCommand("fire the player at the mouse at a speed", "fireplayeratmouse",
                          firePlayerAtMouse);
    registerPlayerCommand("get the world pos of the mouse", "getmousepos",
                          [](Player& player) { consolePrint(mouseLine(player)); });
    registerPlayerCommand("kill all player velocity", "killvelocity",
                          [](Player& player) { player.vel = Vector(); });
    registerPlayerCommand("dump player info", "playerinfo", playerInfo);
}

}  // namespace bc
