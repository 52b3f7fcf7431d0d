// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Sound files: whatever the header check lets through is decoded as a sample, opened as music and
// played for a moment. Run it with -detect_leaks=0: the FLAC loader of SDL_mixer loses a few bytes.
#include "FuzzFolder.h"

#include "sound/SdlMixer.h"
#include "sound/VirtualMixer.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bc::FuzzFolder folder;
    static bc::SdlMixer mixer;
    static const bool open = setenv("SDL_AUDIODRIVER", "dummy", 1) == 0 &&
                             mixer.open(44100, 2, 2048) && mixer.allocateChannels(32) == 32;
    if (!open)
        std::abort();
    folder.put("x", data, size);
    const std::string path = bc::files::resolve("x").value_or("");
    if (const auto sample = mixer.loadSample(path)) {
        mixer.play(-1, *sample, 0);
        mixer.halt(0);
    }
    if (const auto music = mixer.loadMusic(path)) {
        (void)mixer.playMusic(*music);
        mixer.haltMusic();
    }
    static bc::VirtualMixer books;
    (void)books.loadMusic(path);
    return 0;
}
