// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"

namespace bc {

/// Moves whatever touches it to its first target (type "teleporter").
class Teleporter final : public GameBody {
  public:
    Teleporter();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTouch(const TouchInfo& info) override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;

    /// What comes through leaves with exitVelocity instead of its own.
    bool changeVelocity = false;
    Vector exitVelocity;
};

/// The glow of a teleporter (type "teleportervisual").
class TeleporterVisual final : public GameBody {
  public:
    TeleporterVisual();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onLoaded() override;
};

}  // namespace bc
