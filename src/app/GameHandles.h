// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/Game.h"
#include "command/GameVar.h"

namespace bc {

/// The variables that the application reads, bound once by name and read whenever needed.
struct Game::Handles {
    GameVar* chasecam = nullptr;
    GameVar* gravity = nullptr;
    GameVar* frustumcull = nullptr;
    GameVar* frustumcull2 = nullptr;
    GameVar* collideoutsidefrustum = nullptr;
    GameVar* drawgrid = nullptr;
    GameVar* drawboundingspheres = nullptr;
    GameVar* drawboundingboxes = nullptr;
    GameVar* drawsky = nullptr;
    GameVar* drawbloom = nullptr;
    GameVar* drawparticles = nullptr;
    GameVar* bodyinfo = nullptr;
    GameVar* partcileinfo = nullptr;
    GameVar* drawspeed = nullptr;
    GameVar* debuginfo = nullptr;
    GameVar* movierecord = nullptr;
    GameVar* camoffset = nullptr;
    GameVar* difficulty = nullptr;

    /// 0 while the variable is not bound.
    static int intOf(const GameVar* v) { return v != nullptr ? v->intValue() : 0; }
};

}  // namespace bc
