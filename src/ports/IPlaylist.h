// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace bc {

/// The music tracks, played one after another, round and round.
class IPlaylist {
  public:
    virtual ~IPlaylist() = default;
    /// Fills the list with the game's tracks and draws the one to begin with; name is not used.
    virtual void start(const std::string& name) = 0;
    virtual void next() = 0;
    virtual void previous() = 0;
    virtual void play(int index) = 0;
    /// Empties the list and lets go of the music.
    virtual void stop() = 0;
    virtual void printInfo() = 0;
};

}  // namespace bc
