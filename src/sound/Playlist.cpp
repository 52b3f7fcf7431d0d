// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "sound/Playlist.h"

#include "command/CommandRegistry.h"
#include "core/Log.h"
#include "core/Random.h"
#include "core/Text.h"
#include "resources/FileSystem.h"
#include "sound/Mixer.h"

#include <iterator>
#include <utility>

namespace bc {

namespace {

// In this order the music rises from the calmest track to the wildest and falls again.
constexpr const char* gameTracks[] = {
    "data/sounds/music/stillwater.ogg", "data/sounds/music/slipstream.ogg",
    "data/sounds/music/flashpoint.ogg", "data/sounds/music/undertow.ogg",
    "data/sounds/music/homelight.ogg",
};

/// Writes a message to the console and to the log.
void announce(const std::string& message) {
    consolePrint(message);
    logLine(message);
}

}  // namespace

Playlist::Playlist(Mixer& mixer) : mixer_(mixer) {}

Playlist::~Playlist() = default;

void Playlist::start(const std::string& /*name*/) {
    setTracks({std::begin(gameTracks), std::end(gameTracks)});
    const int count = static_cast<int>(tracks_.size());
    // One before the drawn track, because next() plays the following one.
    index_ = (count == 1 ? 0 : randomInt() % count) - 1;
}

void Playlist::next() {
    ++index_;
    if (index_ >= static_cast<int>(tracks_.size()))
        index_ = 0;
    play(index_);
}

void Playlist::previous() {
    --index_;
    if (index_ < 0)
        index_ = static_cast<int>(tracks_.size()) - 1;
    play(index_);
}

void Playlist::play(int index) {
    if (index < 0 || index >= static_cast<int>(tracks_.size()))
        return;
    index_ = index;
    const std::string& path = tracks_[static_cast<std::size_t>(index)];
    std::string base;
    std::string extension;
    splitExtension(path, base, extension);
    if (equalsNoCase(extension, ".mp3")) {
        mixer_.haltMusic();
        fail("MP3s aren't supported: " + path);
        return;
    }
    const auto file = files::resolve(path);
    auto music = file ? mixer_.loadMusic(*file) : nullptr;
    mixer_.haltMusic();
    if (!music) {
        fail("Mix_LoadMUS failed for: " + path);
        return;
    }
    music_ = std::move(music);
    if (mixer_.playMusic(*music_))
        failures_ = 0;
    else
        fail("Mix_PlayMusic failed for: " + path);
}

void Playlist::fail(const std::string& message) {
    ++failures_;
    announce(message);
}

void Playlist::stop() {
    mixer_.haltMusic();
    tracks_.clear();
    index_ = -1;
    music_.reset();
}

void Playlist::printInfo() {
    const std::string track = currentTrack();
    if (!track.empty())
        consolePrint("Now Playing: " + track);
}

void Playlist::setTracks(std::vector<std::string> tracks) {
    tracks_ = std::move(tracks);
    index_ = -1;
    failures_ = 0;
}

std::string Playlist::currentTrack() const {
    return index_ >= 0 && index_ < static_cast<int>(tracks_.size())
               ? tracks_[static_cast<std::size_t>(index_)]
               : std::string();
}

}  // namespace bc
