// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <IL/il.h>

#include <string>

namespace bc {

struct Image;

/// Starts the imaging library once in the life of the process.
void startDevil();

/// One image of the imaging library, which works on the image bound last; deleted with the object.
class DevilImage {
  public:
    /// Binds it, too.
    DevilImage();
    ~DevilImage();
    DevilImage(const DevilImage&) = delete;
    DevilImage& operator=(const DevilImage&) = delete;

    void bind() const;
    /// Takes a copy of a picture of 24 bits; false when there is no memory for it.
    [[nodiscard]] bool assign(const Image& picture) const;
    /// Writes it as a PNG of the user folder, replacing the file that is there; false (and a log
    /// line) when that failed.
    [[nodiscard]] bool savePng(const std::string& name) const;

  private:
    ILuint id_ = 0;
};

}  // namespace bc
