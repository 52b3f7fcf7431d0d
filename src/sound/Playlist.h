// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/IPlaylist.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace bc {

class Mixer;
class MixerMusic;

/// The music of the game, one track after another, round and round, from a random one. Messages
/// about tracks that do not play go to the console and to the log.
class Playlist final : public IPlaylist {
  public:
    /// The mixer is not owned and outlives the list.
    explicit Playlist(Mixer& mixer);
    ~Playlist() override;
    Playlist(const Playlist&) = delete;
    Playlist& operator=(const Playlist&) = delete;

    void start(const std::string& name) override;
    void next() override;
    void previous() override;
    /// An index outside the list plays nothing.
    void play(int index) override;
    void stop() override;
    void printInfo() override;

    /// Other tracks than the game's own; the next one to play is the first.
    void setTracks(std::vector<std::string> tracks);
    [[nodiscard]] const std::vector<std::string>& tracks() const { return tracks_; }
    /// -1 before the first track.
    [[nodiscard]] int currentIndex() const { return index_; }
    /// The path of the current track, empty when there is none.
    [[nodiscard]] std::string currentTrack() const;
    /// Whether no track of the list has played since a whole round of them was tried.
    [[nodiscard]] bool isUnplayable() const { return failures_ >= tracks_.size(); }
    /// Every track is worth another try, as after a change of the device.
    void retry() { failures_ = 0; }

  private:
    void fail(const std::string& message);

    Mixer& mixer_;
    std::vector<std::string> tracks_;
    int index_ = -1;
    std::size_t failures_ = 0;  ///< tracks in a row that did not play
    std::unique_ptr<MixerMusic> music_;
};

}  // namespace bc
