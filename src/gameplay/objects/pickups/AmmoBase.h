// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/pickups/RespawnableBody.h"

namespace bc {

/// Ammunition of one kind; the type name (as "shotgunammo") says of which unless the level does.
class AmmoBase final : public RespawnableBody {
  public:
    explicit AmmoBase(const std::string& typeName = "ammobase");

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void fields(BodyFields& f) override;

    /// Rounds.
    int ammo = 10;
    /// Short name of the ammunition.
    std::string ammoType;

  protected:
    [[nodiscard]] bool wanted(Player& player) const override;
    void give(Player& player) override;
    void pickupFeedback() override;
};

}  // namespace bc
