// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Text.h"
#include "core/Vector.h"

#include <map>
#include <string>
#include <string_view>

namespace bc {

/// Reads the free-form attributes of a level object by name, without regard to case. What is not
/// given leaves its target as it is.
class Attributes {
  public:
    explicit Attributes(const std::map<std::string, std::string>& values) : values_(values) {}

    void read(std::string_view name, float& out) const {
        if (const std::string* text = find(name))
            out = parseFloat(*text);
    }
    void read(std::string_view name, int& out) const {
        if (const std::string* text = find(name))
            out = parseInt(*text);
    }
    void read(std::string_view name, bool& out) const {
        if (const std::string* text = find(name))
            out = parseBool(*text);
    }
    void read(std::string_view name, std::string& out) const {
        if (const std::string* text = find(name))
            out = *text;
    }
    void read(std::string_view name, Vector& out) const {
        if (const std::string* text = find(name))
            out.fromString(*text);
    }

  private:
    [[nodiscard]] const std::string* find(std::string_view name) const {
        for (const auto& [key, value] : values_)
            if (equalsNoCase(key, name))
                return &value;
        return nullptr;
    }

    const std::map<std::string, std::string>& values_;
};

}  // namespace bc
