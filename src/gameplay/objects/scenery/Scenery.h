// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"

namespace bc {

/// An invisible wall that doors pass through (type "clip").
class Clip final : public GameBody {
  public:
    Clip();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onLoaded() override;
};

/// Decoration (type "detail").
class DetailBody final : public GameBody {
  public:
    DetailBody();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
};

/// Something to push about (type "debugmoveable").
class DebugMoveable final : public GameBody {
  public:
    DebugMoveable();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
};

}  // namespace bc
