// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "world/Body.h"

#include <memory>

namespace bc {

/// Base of a body class that makes new objects of itself by its default constructor:
/// class Door final : public Creatable<Door, GameBody>.
template <class Self, class Base>
class Creatable : public Base {
  public:
    using Base::Base;

    [[nodiscard]] std::unique_ptr<Body> create() const override { return std::make_unique<Self>(); }
};

}  // namespace bc
