// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "command/GameVar.h"

namespace bc {

/// The variables that the application reads, found once by name. Null until bind; the registry owns
/// them.
struct AppVariables {
    /// Finds all of them. One that data/gamevars.xml does not declare is made with the value 0, and
    /// the log names it.
    void bind();

    GameVar* chasecam = nullptr;
    GameVar* gravity = nullptr;
    GameVar* frustumcull = nullptr;
    GameVar* frustumcull2 = nullptr;
    /// Declared for config files; nothing reads it.
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
};

}  // namespace bc
