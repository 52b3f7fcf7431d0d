// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace bc {

class DevilImage;
struct Image;

/// Screenshots, movie frames and the thumbnail that waits for its save game. A frame that could
/// not be read arrives as nothing.
class Pictures {
  public:
    Pictures();
    ~Pictures();
    Pictures(const Pictures&) = delete;
    Pictures& operator=(const Pictures&) = delete;

    /// Writes screenshots/screenshotNNNN.png under the first number from the last one on that no
    /// file has, or, for a movie, screenshots/movieNNNN.png under the next number. Numbers end
    /// before 9999.
    void writeScreenshot(const std::optional<Image>& frame, bool movie);
    /// Replaces the thumbnail that waits.
    void grabThumbnail(const std::optional<Image>& frame);
    /// Scales the waiting thumbnail to that many pixels and writes it as a PNG of the user
    /// folder. False when none waits, the size is none, or writing failed.
    bool saveThumbnail(const std::string& path, int width, int height);

  private:
    [[nodiscard]] std::string nextName(bool movie);

    int counter_ = 0;
    std::unique_ptr<DevilImage> thumbnail_;
};

}  // namespace bc
