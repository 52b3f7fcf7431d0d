// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "view/Matrix4.h"

#include <array>
#include <cstddef>

namespace bc {

/// A stack of transformations; the top is the current one. It has 32 levels. Pushes beyond them are
/// counted, and use the last level, so that the same number of pops undoes them. A pop at the
/// bottom does nothing.
class MatrixStack {
  public:
    [[nodiscard]] const Matrix4& top() const { return levels_[index()]; }
    [[nodiscard]] Matrix4& top() { return levels_[index()]; }
    void push() {
        ++depth_;
        if (depth_ < levels_.size())
            levels_[depth_] = levels_[depth_ - 1];
    }
    void pop() {
        if (depth_ > 0)
            --depth_;
    }
    [[nodiscard]] std::size_t depth() const { return depth_; }
    /// Leaves one level, the identity.
    void clear() {
        depth_ = 0;
        levels_[0] = Matrix4{};
    }

  private:
    [[nodiscard]] std::size_t index() const {
        return depth_ < levels_.size() ? depth_ : levels_.size() - 1;
    }

    std::array<Matrix4, 32> levels_;
    std::size_t depth_ = 0;
};

}  // namespace bc
