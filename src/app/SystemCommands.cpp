// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/SystemCommands.h"

#include "app/Version.h"
#include "command/CommandRegistry.h"
#include "core/Log.h"

#include <SDL/SDL.h>
#include <SDL/SDL_mixer.h>

#include <string>

namespace bc {

namespace {

std::string sdlVersion(const SDL_version& v) {
    return std::to_string(v.major) + '.' + std::to_string(v.minor) + '.' + std::to_string(v.patch);
}

void printSdlInfo() {
    logLine("===SDL Info===");
    logLine("SDL compiled version: : 1.2.11");
    logLine("running with SDL version: " + sdlVersion(*SDL_Linked_Version()));
    logLine("SDL_mixer compiled version: : 1.2.8");
    logLine("running with SDL_mixer version: " + sdlVersion(*Mix_Linked_Version()));
}

}  // namespace

void registerSystemCommands(bool hasWindow) {
    CommandRegistry& c = commands();
    c.registerCommand("print out sdl info", "sdlinfo", printSdlInfo);
    c.registerCommand("lock mouse in frame", "lockmouse", [hasWindow] {
        if (hasWindow)
            SDL_WM_GrabInput(SDL_GRAB_ON);
    });
    c.registerCommand("unlock mouse from frame", "unlockmouse", [hasWindow] {
        if (hasWindow)
            SDL_WM_GrabInput(SDL_GRAB_OFF);
    });
    c.registerCommand("print the game version", "version", [] {
        consolePrint("Game Version: " + std::to_string(versionNumber) + " : " + " Full");
    });
}

}  // namespace bc
