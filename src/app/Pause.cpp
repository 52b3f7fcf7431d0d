// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/Pause.h"

#include "app/Subsystems.h"
#include "command/CommandRegistry.h"
#include "ports/IGameplay.h"
#include "sound/Sound.h"

namespace bc {

namespace {

/// Percent.
constexpr int soundVolume = 100;

}  // namespace

void Pause::registerCommands() {
    CommandRegistry& c = commands();
    c.registerCommand("pause game", "pause", [this] { toggle(); });
    c.registerCommand("show map", "+showmap", [this] { showMap(true); });
    c.registerCommand("stop showing map", "-showmap", [this] { showMap(false); });
}

void Pause::pauseGame() {
    paused_ = true;
    subsystems_.frameClock().pause();
    subsystems_.gameplay().pause();
    subsystems_.sound().playName("data/sounds/events/Off3.wav", 0, soundVolume);
}

void Pause::resumeGame() {
    paused_ = false;
    subsystems_.frameClock().resume();
    subsystems_.gameplay().resume();
    subsystems_.sound().playName("data/sounds/events/On3.wav", 0, soundVolume);
}

void Pause::toggle() {
    if (paused_)
        resumeGame();
    else
        pauseGame();
}

void Pause::showMap(bool on) {
    showingMap_ = on;
    if (on && !paused_)
        pauseGame();
    else if (!on && paused_)
        resumeGame();
}

}  // namespace bc
