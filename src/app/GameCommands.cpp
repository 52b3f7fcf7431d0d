// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The application's own console commands and variables, and the configuration scripts.
#include "app/CommandFile.h"
#include "app/Game.h"
#include "app/GameDumps.h"
#include "app/GameHandles.h"
#include "app/Version.h"
#include "command/CommandRegistry.h"
#include "core/Log.h"
#include "gameplay/player/Player.h"
#include "gui/GUIManager.h"
#include "input/Console.h"
#include "ports/FontRenderer.h"
#include "ports/IRenderer.h"
#include "resources/FileSystem.h"

#include <SDL/SDL.h>
#include <SDL/SDL_mixer.h>

#include <cstdio>
#include <sstream>

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

bool Game::registerCommands() {
    registerSystemCommands();
    registerLevelCommands();
    registerPlayerCommands();
    dumps_->registerCommands();
    bindVariables();
    commands().execute("exec config.txt");
    // The person's own settings run twice, so that one that toggles ends as it was.
    commands().execute("exec userconfig.txt");
    commands().execute("exec userconfig.txt");
    if (files::resolve("data/autoexec.txt"))
        commands().execute("exec autoexec.txt");
    return true;
}

void Game::bindVariables() {
    const auto bind = [](GameVar*& handle, const char* name) { handle = vars().getVar(name); };
    bind(vars_->chasecam, "chasecam");
    bind(vars_->gravity, "gravity");
    bind(vars_->frustumcull, "frustumcull");
    bind(vars_->frustumcull2, "frustumcull2");
    bind(vars_->collideoutsidefrustum, "collideoutsidefrustum");
    bind(vars_->drawgrid, "drawgrid");
    bind(vars_->drawboundingspheres, "drawboundingspheres");
    bind(vars_->drawboundingboxes, "drawboundingboxes");
    bind(vars_->drawsky, "drawsky");
    bind(vars_->drawbloom, "drawbloom");
    bind(vars_->drawparticles, "drawparticles");
    bind(vars_->bodyinfo, "bodyinfo");
    bind(vars_->partcileinfo, "partcileinfo");
    bind(vars_->drawspeed, "drawspeed");
    bind(vars_->debuginfo, "debuginfo");
    bind(vars_->movierecord, "movierecord");
    bind(vars_->camoffset, "camoffset");
    bind(vars_->difficulty, "difficulty");
}

void Game::registerSystemCommands() {
    CommandRegistry& c = commands();
    c.registerCommand("print out sdl info", "sdlinfo", printSdlInfo);
    c.registerCommand("dump texture cache info to file", "dumptextures", [this] {
        std::ostringstream text;
        renderer_->dumpTextures(text);
        writeCommandFile(commands().arg(0, "texturecachedump.txt"), text.str());
    });
    const bool window = !options_.headless;
    c.registerCommand("lock mouse in frame", "lockmouse", [window] {
        if (window)
            SDL_WM_GrabInput(SDL_GRAB_ON);
    });
    c.registerCommand("unlock mouse from frame", "unlockmouse", [window] {
        if (window)
            SDL_WM_GrabInput(SDL_GRAB_OFF);
    });
    c.registerCommand("debug res test", "resdbg", [this] {
        renderer_->setVideoMode(1024, 768, false);
        renderer_->getFontRenderer()->init();
        gui_->setScreenSize(1024, 768);
        console_->setScreenSize(1024, 768);
    });
    c.registerCommand("take a screenshot", "screenshot", [this] { screenshotPending_ = true; });
    c.registerCommand("print the game version", "version", [] {
        consolePrint("Game Version: " + std::to_string(versionNumber) + " : " + " Full");
    });
    c.registerCommand("change the video mode based on vars", "vidrestart", [this] {
        setVideoMode(vars().getVar("vidwidth")->intValue(), vars().getVar("vidheight")->intValue(),
                     vars().getVar("vidfullscreen")->intValue() > 0);
    });
    c.registerCommand("write all keybinds and variables to a config file", "writeconfig", [this] {
        const bool named = commands().argCount() >= 1;
        const std::string path = commands().arg(0, "data/config.txt");
        if (writeConfig(path, !named))
            consolePrint("Wrote keybinds and variables to " + path);
        else
            reportUnwritable(path);
    });
}

void Game::registerLevelCommands() {
    CommandRegistry& c = commands();
    c.registerCommand("load a map", "map", [this] { loadMap(commands().arg(0, "test.xml"), ""); });
    c.registerCommand("unload a map", "unmap", [this] { unloadMap(); });
    c.registerCommand("save game", "savegame",
                      [this] { requestSaveAs(commands().arg(0, "temp")); });
    c.registerCommand("load game", "loadgame", [this] { loadGame(commands().arg(0, "temp")); });
    c.registerCommand("load a specified sky", "sky", [this] {
        const std::string name = commands().arg(0, "default");
        if (!skyManager_.replaceAllByName(name))
            consolePrint("Could not load sky file:" + SkyManager::pathOf(name));
    });
    c.registerCommand("pause game", "pause", [this] { togglePause(); });
    c.registerCommand("show map", "+showmap", [this] { showMap(true); });
    c.registerCommand("stop showing map", "-showmap", [this] { showMap(false); });
}

void Game::registerPlayerCommands() {
    CommandRegistry& c = commands();
    c.registerCommand("turn player collisions off", "noclip", [this] {
        noclip_ = !noclip_;
        consolePrint(noclip_ ? "Noclip on" : "Noclip off");
        player_->solid = !noclip_;
        player_->gravitymultiplier = noclip_ ? 0.0F : 1.0F;
    });
    c.registerCommand("warp to 0 0 0", "warp", [this] { player_->setPosition(Vector()); });
}

}  // namespace bc
