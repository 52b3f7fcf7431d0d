// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace bc::levelc {

/// What is wrong with a map. One line each, naming the file and, where there is one, the object, so
/// that it is found at once in the editor. A map with a problem compiles to nothing.
class Problems {
  public:
    explicit Problems(std::string file) : file_(std::move(file)) {}

    void add(const std::string& text) { lines_.push_back(file_ + ": " + text); }
    void add(int objectId, const std::string& objectName, const std::string& text) {
        add("object " + std::to_string(objectId) + " \"" + objectName + "\": " + text);
    }
    [[nodiscard]] bool empty() const { return lines_.empty(); }
    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }

  private:
    std::string file_;
    std::vector<std::string> lines_;
};

}  // namespace bc::levelc
