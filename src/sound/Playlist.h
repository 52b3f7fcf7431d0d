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

/// Plays tracks on a mixer. When a track cannot be played the console and the log say so, and no
/// music plays until the next call.
class Playlist final : public IPlaylist {
  public:
    /// The mixer is not owned; it must outlive the list.
    explicit Playlist(Mixer& mixer);
    ~Playlist() override;
    Playlist(const Playlist&) = delete;
    Playlist& operator=(const Playlist&) = delete;

    void start(const std::string& name) override;
    void next() override;
    void previous() override;
    void play(int index) override;
    void stop() override;
    void printInfo() override;

    /// Replaces the tracks (names for files::resolve). The next call of next() plays the first.
    void setTracks(std::vector<std::string> tracks);
    [[nodiscard]] const std::vector<std::string>& tracks() const { return tracks_; }
    /// -1 before the first track was played.
    [[nodiscard]] int currentIndex() const { return index_; }
    /// The name of the current track; empty when there is none.
    [[nodiscard]] std::string currentTrack() const;
    /// True when as many attempts in a row have failed as there are tracks.
    [[nodiscard]] bool isUnplayable() const { return failures_ >= tracks_.size(); }
    /// Forgets the failures. Called when the device has changed.
    void retry() { failures_ = 0; }

  private:
    /// Counts a failure and reports it.
    void fail(const std::string& message);

    Mixer& mixer_;
    std::vector<std::string> tracks_;
    int index_ = -1;
    std::size_t failures_ = 0;  ///< since a track was last played
    std::unique_ptr<MixerMusic> music_;
};

}  // namespace bc
