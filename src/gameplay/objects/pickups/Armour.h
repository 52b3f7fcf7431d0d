// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/pickups/RespawnableBody.h"

namespace bc {

/// Armour (type "armour"), taken while the player's is not at its maximum.
class Armour : public RespawnableBody {
  public:
    Armour();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;

    int amount = 0;

  protected:
    [[nodiscard]] bool wanted(Player& player) const override;
    void give(Player& player) override;
    void pickupFeedback() override;
};

/// The small one (type "quickarmour").
class QuickArmour final : public Armour {
  public:
    QuickArmour();

    [[nodiscard]] std::unique_ptr<Body> create() const override;

  protected:
    void pickupFeedback() override;
};

}  // namespace bc
