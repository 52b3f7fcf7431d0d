// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The console commands of Sound.
#include "command/CommandRegistry.h"
#include "core/Text.h"
#include "sound/Sound.h"

#include <algorithm>
#include <cstdint>

namespace bc {

namespace {

/// Raises (direction 1) or lowers (-1) the volume by the first argument of the command, or by 1.
void changeVolume(Sound& sound, int direction) {
    const std::int64_t step = commands().argCount() > 0 ? parseInt(commands().arg(0)) : 1;
    const std::int64_t volume = sound.getVolume() + direction * step;
    sound.setVolume(static_cast<int>(std::clamp<std::int64_t>(volume, 0, 128)));
}

}  // namespace

void Sound::registerCommands() {
    CommandRegistry& registry = commands();
    registry.registerCommand("play a sound", "playsound", [this] {
        const std::string name = commands().arg(0, "data/sounds/test/test.ogg");
        playName(name, 0, 100);
        if (initialised_ && findSampleIndex(name) < 0)
            consolePrint("Couldn't find sound: " + name);
    });
    registry.registerCommand("sets the volume", "setvolume", [this] {
        const int volume = commands().argCount() > 0 ? parseInt(commands().arg(0)) : -1;
        if (volume >= 0 && volume <= 128)
            setVolume(volume);
        else
            consolePrint("Volume must be between 0 and 128");
    });
    registry.registerCommand("increase the volume", "volumeup", [this] { changeVolume(*this, 1); });
    registry.registerCommand("decrease the volume", "volumedown",
                             [this] { changeVolume(*this, -1); });
    registry.registerCommand("restart the sound system", "soundrestart", [this] {
        if (!openAudio())
            consolePrint("Sound init Failed: " + mixer_->error());
    });
    registry.registerCommand("playlist next", "plnext", [this] { nextTrack(); });
    registry.registerCommand("playlist previous", "plprev", [this] { playlist_.previous(); });
    registry.registerCommand("playlist info", "plinfo", [this] { playlist_.printInfo(); });
}

}  // namespace bc
