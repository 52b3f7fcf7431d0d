// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

#include <string>

namespace bc {

/// What a dump command wrote, searched as text: dumps of whole levels are large and many.
class Dump {
  public:
    /// Id of the player's craft.
    static constexpr const char* craft = "anarch";

    explicit Dump(std::string text) : text_(std::move(text)) {}

    /// The first attribute of that name of a body, or of an element when no body has the name.
    /// "none" when there is no such attribute.
    [[nodiscard]] std::string value(const std::string& name, const std::string& attribute) const;
    [[nodiscard]] float number(const std::string& name, const std::string& attribute) const;
    [[nodiscard]] Vector vector(const std::string& name, const std::string& attribute) const {
        return Vector(value(name, attribute));
    }
    [[nodiscard]] int count(const std::string& part) const;
    [[nodiscard]] const std::string& text() const { return text_; }

  private:
    std::string text_;
};

/// How often a text holds another.
[[nodiscard]] int countIn(const std::string& text, const std::string& part);

}  // namespace bc
