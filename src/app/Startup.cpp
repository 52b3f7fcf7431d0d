// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/Startup.h"

#include "app/Options.h"
#include "app/Subsystems.h"
#include "app/VideoModes.h"
#include "command/CommandRegistry.h"
#include "command/GameVar.h"
#include "core/Log.h"
#include "gui/GUIManager.h"
#include "input/Console.h"
#include "particles/ParticleManager.h"
#include "ports/FontRenderer.h"
#include "ports/IRenderer.h"
#include "resources/FileSystem.h"
#include "sound/Sound.h"

#include <SDL/SDL.h>

#include <cstdio>

namespace bc {

namespace {

constexpr const char* firstLevel = "hangar";

bool startsAMap(const std::string& command) {
    return command == "map" || command.rfind("map ", 0) == 0 || command.rfind("loadgame", 0) == 0;
}

/// Marks the beginning of a run in the list of the levels finished, if one is kept.
void writeRunBanner() {
    const GameVar* record = vars().findVar("recordleveltimes");
    if (record == nullptr || record->intValue() <= 0)
        return;
    files::append("leveltimes.txt",
                  "\n\n===============================\n New Run \n"
                  "===============================\n");
}

}  // namespace

bool Startup::openWindow(IGame& game) {
    logLine("======== GAME INIT ========");
    commands().registerBuiltinCommands();
    vars().registerBuiltinCommands();
    vars().loadDeclarations("data/gamevars.xml");
    InputManager& input = subsystems_.input();
    GUIManager& gui = subsystems_.gui();
    Console& console = subsystems_.console();
    input.loadKeymap("data/keymaps.xml");
    input.init(&game, &subsystems_.renderer(), &gui, &console);
    input.registerTarget("gui", &gui);
    input.registerTarget("console", &console);
    input.setTarget("gui");
    if (!initRenderer())
        return false;
    subsystems_.createPlay(game);
    return true;
}

bool Startup::initRenderer() {
    if (subsystems_.renderer().init())
        return true;
    std::fprintf(stderr, "brightclash: no window with OpenGL could be opened: %s\n",
                 SDL_GetError());
    SDL_Quit();
    return false;
}

bool Startup::loadData(IGame& game) {
    modes_.initVideoMode();
    subsystems_.console().init(&game);
    modes_.passScreenSize();
    Sound& sound = subsystems_.sound();
    sound.init();
    sound.loadSoundDefs("data/sounds/sounds.xml");
    subsystems_.frameClock().restart();
    particleManager().makeDefaultDefinition();
    particleManager().loadDefinitions("data/particles/particles.xml");
    particleManager().reloadTextures(subsystems_.renderer());
    subsystems_.sky().init();
    if (!initFonts())
        return false;
    writeRunBanner();
    // A film does not go on in the next run.
    if (GameVar* movie = vars().findVar("movierecord"))
        movie->setInt(0);
    sound.startPlaylist("");
    return true;
}

bool Startup::initFonts() {
    IRenderer& renderer = subsystems_.renderer();
    FontRenderer& fonts = *renderer.getFontRenderer();
    fonts.setRenderer(&renderer);
    if (fonts.init())
        return true;
    logLine("Error Initialising font renderer");
    std::fprintf(stderr, "brightclash: the fonts under %s/data/fonts cannot be read\n",
                 files::dataFolder().c_str());
    return false;
}

void Startup::runStartCommands() {
    bool mapGiven = false;
    for (const std::string& command : options_.commands) {
        mapGiven = mapGiven || startsAMap(command);
        commands().execute(command);
    }
    if (!mapGiven)
        commands().execute(std::string("map ") + firstLevel);
}

}  // namespace bc
