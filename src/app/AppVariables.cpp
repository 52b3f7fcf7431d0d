// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/AppVariables.h"

namespace bc {

void AppVariables::bind() {
    const auto find = [](GameVar*& handle, const char* name) { handle = vars().getVar(name); };
    find(chasecam, "chasecam");
    find(gravity, "gravity");
    find(frustumcull, "frustumcull");
    find(frustumcull2, "frustumcull2");
    find(collideoutsidefrustum, "collideoutsidefrustum");
    find(drawgrid, "drawgrid");
    find(drawboundingspheres, "drawboundingspheres");
    find(drawboundingboxes, "drawboundingboxes");
    find(drawsky, "drawsky");
    find(drawbloom, "drawbloom");
    find(drawparticles, "drawparticles");
    find(bodyinfo, "bodyinfo");
    find(partcileinfo, "partcileinfo");
    find(drawspeed, "drawspeed");
    find(debuginfo, "debuginfo");
    find(movierecord, "movierecord");
    find(camoffset, "camoffset");
    find(difficulty, "difficulty");
}

}  // namespace bc
