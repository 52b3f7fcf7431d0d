// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "render/CharacterDescriptor.h"

#include <optional>
#include <string>
#include <vector>

class TiXmlElement;

namespace bc {

/// One image font: a descriptor for each character code from 0 on, and the names of its pages.
class Font {
  public:
    /// Reads data/fonts/ + fileName in place of what was there. False, with a line in the log,
    /// when it cannot be read.
    bool load(const std::string& fileName);
    /// Null for a code without a descriptor.
    [[nodiscard]] CharacterDescriptor* getDescriptor(int code);
    [[nodiscard]] const CharacterDescriptor* getDescriptor(int code) const;
    /// Puts an empty one in its place; codes beyond 255 change nothing.
    void createDescriptor(int code);
    /// 0 for a code without a descriptor.
    [[nodiscard]] float glyphHeight(int code) const;
    [[nodiscard]] const std::vector<std::string>& getImageNames() const { return images_; }

    /// Pixels.
    int size = 0;
    std::string name;

  private:
    void readDescriptors(const TiXmlElement& list);
    void readImages(const TiXmlElement& list);

    std::vector<std::optional<CharacterDescriptor>> descriptors_;
    std::vector<std::string> images_;
};

}  // namespace bc
