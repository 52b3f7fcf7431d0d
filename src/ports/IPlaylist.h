// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace bc {

/// The music tracks, played in their order; the first follows the last.
class IPlaylist {
  public:
    virtual ~IPlaylist() = default;
    /// Fills the list with the game's tracks. The next call of next() plays a random one. name is
    /// ignored.
    virtual void start(const std::string& name) = 0;
    virtual void next() = 0;
    virtual void previous() = 0;
    /// Plays the track at this index (from 0); nothing happens when there is none.
    virtual void play(int index) = 0;
    /// Stops the music and empties the list.
    virtual void stop() = 0;
    /// Prints the current track to the console.
    virtual void printInfo() = 0;
};

}  // namespace bc
